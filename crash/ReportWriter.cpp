// SPDX-License-Identifier: MIT
#include "crash/ReportWriter.h"

#include <cstring>
#include <unistd.h>

ReportWriter::ReportWriter(int descriptor)
    : m_descriptor(descriptor)
{
}

ReportWriter &ReportWriter::text(const char *text)
{
    std::size_t left = std::strlen(text);
    while (left > 0) {
        const ssize_t written = ::write(m_descriptor, text, left);
        if (written <= 0)
            break;
        text += written;
        left -= static_cast<std::size_t>(written);
    }
    return *this;
}

ReportWriter &ReportWriter::number(std::uintmax_t number, unsigned base)
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
