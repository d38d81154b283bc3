// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// An application bundle: a folder that holds programs, tools and resources in a fixed layout and
/// may be moved anywhere. Thread: any.
class Bundle {
public:
    explicit Bundle(QString bundlePath);

    /// The bundle that the running program lies in, found from the executable's real path. Needs an
    /// application object.
    static const Bundle &main();

    /// Absolute path of the bundle's folder, without a trailing separator.
    [[nodiscard]] const QString &bundlePath() const { return m_bundlePath; }
    /// The text stored under a key of Contents/Info.plist; absent when there is none or it is not
    /// text.
    [[nodiscard]] std::optional<QString> infoString(const QString &key) const;
    /// Languages that the bundle is translated into: the names of
    /// Contents/Resources/<language>.lproj, sorted.
    [[nodiscard]] QStringList localizations() const;
    /// Folder of a localisation's files.
    [[nodiscard]] QString localizationPath(const QString &language) const;

private:
    QString m_bundlePath;
};
