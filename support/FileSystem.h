// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>
#include <QString>

#include <initializer_list>

/// What the file system says of a path. Links are followed. Thread: any.

/// The files that some paths lead to now, through links, "..", or other letter case too.
class FileIds {
public:
    FileIds(std::initializer_list<QString> paths = {});
    void add(const QString &path);
    [[nodiscard]] bool contains(const QString &path) const;

private:
    QSet<std::pair<quint64, quint64>> m_ids;
};

/// What a link leads to; the path itself where there is no link, or one that leads nowhere.
[[nodiscard]] QString linkTarget(const QString &path);
