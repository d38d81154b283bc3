// SPDX-License-Identifier: MIT
#pragma once

#include <charconv>
#include <cstdint>
#include <iterator>
#include <string_view>
#include <unistd.h>

/// Writes with write(2) alone, as a signal handler must. Errors: what can't be written is left out.
struct ReportWriter {
    int descriptor;

    ReportWriter &text(std::string_view text)
    {
        while (!text.empty()) {
            const ssize_t written = ::write(descriptor, text.data(), text.size());
            if (written <= 0)
                break;
            text.remove_prefix(static_cast<std::size_t>(written));
        }
        return *this;
    }
    ReportWriter &number(std::uintmax_t number, int base = 10)
    {
        char digits[24];
        return text({ digits, std::to_chars(digits, std::end(digits), number, base).ptr });
    }
    /// `path` is the program's or library's; its folders may tell who the user is and are left out.
    void frame(unsigned index, std::string_view path, std::uintmax_t offset)
    {
        text("  ").number(index).text(" ").text(path.substr(path.rfind('/') + 1));
        text("+0x").number(offset, 16).text("\n");
    }
};

/// Writes the stack of a crash, innermost frame first, with the offsets that addr2line takes.
/// `context` is the signal handler's third argument. Takes no memory.
void writeStack(ReportWriter &report, void *context);
