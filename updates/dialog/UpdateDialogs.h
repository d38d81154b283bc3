// SPDX-License-Identifier: MIT
#pragma once

#include "updates/Updater.h"

#include <QObject>
#include <QPointer>
#include <QUrl>

#include <memory>

class QMessageBox;
class QProgressDialog;
class QWidget;

/// Shows what the updater finds, downloads on the user's word, and opens nothing by itself.
class UpdateDialogs : public QObject {
    Q_OBJECT
public:
    /// `site` is the vendor's web site or empty; updater and window outlive this object.
    UpdateDialogs(Updater &updater, QWidget *window, QUrl site);

private:
    void showCheck(const UpdateCheck &check);
    void showAvailable(const UpdateCheck &check);
    void startDownload(const AppcastItem &item);
    void showEnd(UpdateDownload::End end, const QString &path);
    QMessageBox *makeMessage(const QString &text);

    Updater &m_updater;
    QWidget *m_window;
    QUrl m_site;
    QPointer<QWidget> m_offer;
    std::unique_ptr<UpdateDownload> m_download;
    QPointer<QProgressDialog> m_progress;
};
