// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <cstring>
#include <unistd.h>

/// Writes with write(2) alone, as a signal handler must. Errors: what can't be written is left out.
class ReportWriter {
public:
    explicit ReportWriter(int descriptor)
        : m_descriptor(descriptor)
    {
    }

    ReportWriter &text(const char *text)
    {
        for (std::size_t left = std::strlen(text); left > 0;) {
            const ssize_t written = ::write(m_descriptor, text, left);
            if (written <= 0)
                break;
            text += written;
            left -= static_cast<std::size_t>(written);
        }
        return *this;
    }
    ReportWriter &decimal(std::uintmax_t number) { return this->number(number, 10); }
    ReportWriter &hex(std::uintmax_t number) { return text("0x").number(number, 16); }

private:
    ReportWriter &number(std::uintmax_t number, unsigned base)
    {
        char digits[24];
        char *start = digits + sizeof digits - 1;
        *start = '\0';
        do {
            *--start = "0123456789abcdef"[number % base];
            number /= base;
        } while (number > 0);
        return text(start);
    }

    int m_descriptor;
};

/// Writes the stack of a crash, innermost frame first: the program's or library's name and the
/// offset that addr2line takes. `context` is the signal handler's third argument. Takes no memory.
void writeStack(ReportWriter &report, void *context);
