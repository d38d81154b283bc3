// SPDX-License-Identifier: MIT
#include "updates/dialog/UpdateDialogs.h"

#include <QDesktopServices>
#include <QDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_UpdateDialogs : public QObject {
    Q_OBJECT

public Q_SLOTS:
    void openAddress(const QUrl &url) { m_opened.append(url); }

private:
    QList<QUrl> m_opened;

private Q_SLOTS:
    void offer_withoutKeyLeadsToTheSite()
    {
        for (const QString &scheme : { u"http"_s, u"https"_s })
            QDesktopServices::setUrlHandler(scheme, this, "openAddress");
        Updater updater({ .version = u"1.0.0"_s });
        QWidget window;
        const UpdateDialogs dialogs(updater, &window, QUrl(u"https://example.org/"_s));
        AppcastItem item;
        item.displayVersion = u"9.0"_s;
        item.notes = u"<script>x()</script><ul><li><b>Faster</b> st\u202eart<li>See "
                     "http://evil.example/</ul>"_s;
        Q_EMIT updater.checked({ .outcome = UpdateCheck::Outcome::Available, .item = item });

        auto *dialog = window.findChild<QDialog *>();
        QVERIFY(dialog);
        QCOMPARE(dialog->findChild<QLabel *>()->text(),
            u"Video Converter 9.0 is available. You have 1.0.0."_s);
        QCOMPARE(dialog->findChild<QPlainTextEdit *>()->toPlainText(),
            u"Faster start\nSee http://evil.example/"_s);
        QCOMPARE(m_opened, QList<QUrl>());
        const auto buttons = dialog->findChildren<QPushButton *>();
        const auto site = std::ranges::find(buttons, u"Open Web Site"_s, &QPushButton::text);
        QVERIFY(site != buttons.end());
        QTest::mouseClick(*site, Qt::LeftButton);
        QCOMPARE(m_opened, QList<QUrl>{ QUrl(u"https://example.org/"_s) });
    }
};

QTEST_MAIN(tst_UpdateDialogs)
#include "tst_updatedialogs.moc"
