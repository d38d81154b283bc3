// SPDX-License-Identifier: MIT
#include "support/ShellQuoted.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

QString shellQuoted(QStringList words)
{
    static const QRegularExpression harmless(uR"(\A[A-Za-z0-9_@%+=:,./-]+\z)"_s);
    for (QString &word : words) {
        if (!harmless.match(word).hasMatch())
            word = u'\'' + word.replace(u'\'', uR"('\'')"_s) + u'\'';
    }
    return words.join(u' ');
}
