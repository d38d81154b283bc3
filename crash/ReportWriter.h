// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// Writes with write(2) alone, as a signal handler must. Errors: what can't be written is left out.
class ReportWriter {
public:
    explicit ReportWriter(int descriptor);

    ReportWriter &text(const char *text);
    ReportWriter &decimal(std::uintmax_t number) { return this->number(number, 10); }
    ReportWriter &hex(std::uintmax_t number) { return text("0x").number(number, 16); }

private:
    ReportWriter &number(std::uintmax_t number, unsigned base);

    int m_descriptor;
};
