// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <optional>

/// An application bundle: programs, tools and resources in a fixed layout. Thread: any.
class Bundle {
public:
    explicit Bundle(QString bundlePath);

    /// The bundle of the running program. Needs an application object.
    static const Bundle &main();

    [[nodiscard]] const QString &bundlePath() const { return m_bundlePath; }
    /// The text under a key of Contents/Info.plist; absent when there is none.
    [[nodiscard]] std::optional<QString> infoString(const QString &key) const;
    [[nodiscard]] QStringList localizations() const;
    [[nodiscard]] QString localizationPath(const QString &language) const;

private:
    QString m_bundlePath;
};
