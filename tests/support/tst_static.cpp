// SPDX-License-Identifier: MIT
int main() { return 1; }
