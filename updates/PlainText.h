// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What a reader would see of a piece of HTML, as plain text with its paragraphs, at most 4000
/// characters. Takes any text, in time that grows with its length only.
[[nodiscard]] QString plainText(const QString &html);
