// SPDX-License-Identifier: MIT
#include "support/ShellQuoted.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

QString shellQuoted(const QString &word)
{
    static const QRegularExpression harmless(uR"(\A[A-Za-z0-9_@%+=:,./-]+\z)"_s);
    if (harmless.match(word).hasMatch())
        return word;
    return u'\'' + QString(word).replace(u'\'', uR"('\'')"_s) + u'\'';
}

QString shellQuoted(const QStringList &words)
{
    QStringList quoted;
    for (const QString &word : words)
        quoted << shellQuoted(word);
    return quoted.join(u' ');
}
