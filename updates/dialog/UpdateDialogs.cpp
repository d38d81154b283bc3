// SPDX-License-Identifier: MIT
#include "updates/dialog/UpdateDialogs.h"

#include "support/Localized.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentFragment>

#include <array>

using namespace Qt::StringLiterals;

namespace {

// In the order of the outcomes; %@ stands for the own version.
// clang-format off
constexpr std::array outcomeTexts{
    LocalizedText{ "", "" },
    LocalizedText QT_TRANSLATE_NOOP3("Localizable", "You have the newest version of Video Converter, %@.", "update check"),
    LocalizedText QT_TRANSLATE_NOOP3("Localizable", "Updates are not available in this build.", "update check"),
    LocalizedText QT_TRANSLATE_NOOP3("Localizable", "The list of updates could not be read. Please try again later.", "update check"),
    LocalizedText QT_TRANSLATE_NOOP3("Localizable", "An update was announced, but not by the makers of Video Converter. It is not offered.", "update check: wrong signature"),
};

// In the order of the ends; %@ stands for the file's name.
constexpr std::array endTexts{
    LocalizedText QT_TRANSLATE_NOOP3("Localizable", "The update is in your downloads folder as “%@”. Open it to install it.", "update download"),
    LocalizedText QT_TRANSLATE_NOOP3("Localizable", "The download was not signed by the makers of Video Converter and has been thrown away.", "update download: wrong signature"),
    LocalizedText QT_TRANSLATE_NOOP3("Localizable", "The update could not be downloaded. Please try again later.", "update download"),
};
// clang-format on

/// The text of mark-up, without what could turn the order of the words around it.
QString plainText(const QString &html)
{
    constexpr qsizetype longestNotes = 20'000;
    QTextDocument document;
    QTextCursor(&document).insertFragment(QTextDocumentFragment::fromHtml(html.left(longestNotes)));
    QStringList lines;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        lines << (block.textList() ? u"•  "_s : QString()) + block.text();
    QString text = lines.join(u'\n');
    return text.removeIf([](QChar c) { return c.category() == QChar::Other_Format; });
}

}

UpdateDialogs::UpdateDialogs(Updater &updater, QWidget *window, QUrl site)
    : m_updater(updater)
    , m_window(window)
    , m_site(std::move(site))
{
    connect(&updater, &Updater::checked, this, &UpdateDialogs::showCheck);
}

void UpdateDialogs::showCheck(const UpdateCheck &check)
{
    if (check.outcome == UpdateCheck::Outcome::Available)
        showAvailable(check);
    else
        makeMessage(formatted(outcomeTexts.at(static_cast<std::size_t>(check.outcome)),
                        { m_updater.settings().version }))
            ->open();
}

void UpdateDialogs::showAvailable(const UpdateCheck &check)
{
    delete m_offer;
    QMessageBox *offer = makeMessage(formatted(
        QT_TRANSLATE_NOOP3("Localizable", "Video Converter %1$@ is available. You have %2$@.",
            "update dialog: new, own version"),
        { check.item.displayVersion, m_updater.settings().version }));
    m_offer = offer;
    // Nobody asked for it: what the user types or clicks goes on where it was.
    offer->setAttribute(Qt::WA_ShowWithoutActivating, !check.byUser);
    offer->setModal(false);
    offer->setStandardButtons(QMessageBox::NoButton);
    offer->setDetailedText(plainText(check.item.notes));
    offer->setDefaultButton(offer->addButton(
        localized(QT_TRANSLATE_NOOP3("Localizable", "Later", "update dialog, button")),
        QMessageBox::RejectRole));
    const auto *skip = offer->addButton(
        localized(QT_TRANSLATE_NOOP3("Localizable", "Skip This Version", "update dialog, button")),
        QMessageBox::DestructiveRole);
    connect(skip, &QPushButton::clicked, offer, [item = check.item] { Updater::skip(item); });
    if (!m_updater.settings().publicKey.isEmpty()) {
        const auto *download = offer->addButton(
            localized(QT_TRANSLATE_NOOP3("Localizable", "Download", "update dialog, button")),
            QMessageBox::AcceptRole);
        connect(download, &QPushButton::clicked, this,
            [this, item = check.item] { startDownload(item); });
    } else if (m_site.isValid()) {
        const auto *site = offer->addButton(
            localized(QT_TRANSLATE_NOOP3("Localizable", "Open Web Site", "update dialog, button")),
            QMessageBox::AcceptRole);
        connect(site, &QPushButton::clicked, this, [this] { QDesktopServices::openUrl(m_site); });
    } else {
        offer->setInformativeText(localized(
            QT_TRANSLATE_NOOP3("Localizable", "Get it where you got Video Converter from.",
                "update dialog, when neither a download nor a web site is known")));
    }
    offer->show();
}

void UpdateDialogs::startDownload(const AppcastItem &item)
{
    delete m_progress;
    m_progress = new QProgressDialog(m_window);
    m_progress->setAttribute(Qt::WA_DeleteOnClose);
    m_progress->setAutoReset(false);
    m_progress->setMinimumDuration(0);
    m_progress->setMinimumWidth(320);
    m_progress->setRange(0, 0);
    m_progress->setLabelText(
        formatted(QT_TRANSLATE_NOOP3("Localizable", "Downloading version %@", "update download"),
            { item.displayVersion }));
    m_download = std::make_unique<UpdateDownload>(item, m_updater.settings());
    connect(m_download.get(), &UpdateDownload::progressed, m_progress,
        [progress = m_progress.get()](qint64 received, qint64 total) {
            if (total <= 0)
                return;
            progress->setMaximum(1000);
            progress->setValue(static_cast<int>(received * 1000 / total));
        });
    connect(m_download.get(), &UpdateDownload::ended, this, &UpdateDialogs::showEnd);
    connect(m_progress, &QProgressDialog::canceled, this, [this] { m_download.reset(); });
    m_progress->show();
    m_download->start();
}

void UpdateDialogs::showEnd(UpdateDownload::End end, const QString &path)
{
    delete m_progress;
    m_download.release()->deleteLater();
    const QFileInfo file(path);
    QMessageBox *box
        = makeMessage(formatted(endTexts.at(static_cast<std::size_t>(end)), { file.fileName() }));
    box->open();
    if (end != UpdateDownload::End::Saved)
        return;
    const auto *open = box->addButton(
        localized(QT_TRANSLATE_NOOP3("Localizable", "Open Folder", "update download, button")),
        QMessageBox::ActionRole);
    connect(open, &QPushButton::clicked, this,
        [folder = file.path()] { QDesktopServices::openUrl(QUrl::fromLocalFile(folder)); });
}

QMessageBox *UpdateDialogs::makeMessage(const QString &text)
{
    auto *box = new QMessageBox(QMessageBox::Information,
        localized(QT_TRANSLATE_NOOP3("Localizable", "Software Update", "update dialog, title")),
        text, QMessageBox::Ok, m_window);
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    return box;
}
