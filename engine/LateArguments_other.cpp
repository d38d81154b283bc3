// SPDX-License-Identifier: MIT
#include "engine/LateArguments.h"

LateArguments::LateArguments() = default;

LateArguments::~LateArguments() = default;

QStringList LateArguments::placeholders() { return {}; }

QProcessEnvironment LateArguments::environment() const { return {}; }

void LateArguments::enter() const { }

bool LateArguments::isLoading() { return false; }

bool LateArguments::send(const QStringList &) { return false; }
