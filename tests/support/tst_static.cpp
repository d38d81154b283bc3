// SPDX-License-Identifier: MIT
#include "support/Bundle.h"
#include "support/Configuration.h"
#include "support/Console.h"
#include "support/dialogs/AboutWindow.h"
#include "support/dialogs/Static.h"

#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;
using Language = std::optional<QString>;

class TestStatic : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void site_followsTheLanguage_data();
    void site_followsTheLanguage();
    void aboutBox_showsThisProgram();
    void aboutBox_showsCreditsAsPlainText();
    void aboutBox_hasWebSiteOnlyIfThereIsOne();
};

void TestStatic::site_followsTheLanguage_data()
{
    QTest::addColumn<QString>("root");
    QTest::addColumn<Language>("language");
    QTest::addColumn<QStringList>("localizations");
    QTest::addColumn<QString>("site");
    QTest::addColumn<QStringList>("lines");

    const QString root = u"https://example.org/"_s;
    const QString russian = u"https://example.org/ru/"_s;
    const QStringList all{ u"de"_s, u"en"_s, u"ru"_s };
    QTest::newRow("Russian") << root << Language(u"ru"_s) << all << russian
                             << QStringList{ u"ru 2"_s };
    QTest::newRow("in capitals") << root << Language(u"RU"_s) << all << russian
                                 << QStringList{ u"RU 2"_s };
    QTest::newRow("not translated")
        << root << Language(u"ru"_s) << QStringList{ u"de"_s, u"ru_RU"_s, u"RU"_s } << root
        << QStringList();
    QTest::newRow("other language")
        << root << Language(u"de"_s) << all << root << QStringList{ u"de 0"_s };
    QTest::newRow("no language") << root << Language() << all << root << QStringList();
    QTest::newRow("no site") << QString() << Language(u"ru"_s) << all << QString()
                             << QStringList{ u"ru 2"_s };
}

void TestStatic::site_followsTheLanguage()
{
    QFETCH(QString, root);
    QFETCH(Language, language);
    QFETCH(QStringList, localizations);
    QStringList lines;
    Console::setSink([&](const QString &line) { lines += line; });
    QTEST(Static::siteAddress(root, language, localizations), "site");
    QTEST(lines, "lines");
    Console::setSink([](const QString &) {});
}

void TestStatic::aboutBox_showsThisProgram()
{
    QFile info(Bundle::main().bundlePath() + "/Contents/Info.plist"_L1);
    QVERIFY(info.open(QIODevice::WriteOnly));
    info.write("<plist><dict><key>CFBundleName</key><string>Film &lt;b&gt;Turner</string>"
               "<key>CFBundleShortVersionString</key><string>7.8</string></dict></plist>");
    info.close();
    AboutWindow window;
    QVERIFY(info.remove());

    QCOMPARE(window.windowTitle(), u"About Film <b>Turner"_s);
    auto *name = window.findChild<QLabel *>(u"programName"_s);
    QCOMPARE(name->text(), u"Film <b>Turner"_s);
    QCOMPARE(name->textFormat(), Qt::PlainText);
    QCOMPARE(window.findChild<QLabel *>(u"version"_s)->text(), u"Version 7.8"_s);

    window.showWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_Escape);
    QVERIFY(!window.isVisible());
}

void TestStatic::aboutBox_showsCreditsAsPlainText()
{
    AboutWindow window;
    auto *credits = window.findChild<QLabel *>(u"credits"_s);
    window.show();
    window.setCredits(QString());
    QVERIFY(!credits->isVisible());
    window.setCredits(u"<b>Ada</b>"_s);
    QVERIFY(credits->isVisible());
    QCOMPARE(credits->textFormat(), Qt::PlainText);
}

void TestStatic::aboutBox_hasWebSiteOnlyIfThereIsOne()
{
    AboutWindow window;
    auto *button = window.findChild<QPushButton *>(u"website"_s);
    int opened = 0;
    window.show();
    QVERIFY(!button->isVisible());
    window.setOpenWebsiteHandler([&] { ++opened; });
    QCOMPARE(button->isVisible(), !Configuration::siteUrl().isEmpty());
    button->click();
    QCOMPARE(opened, 1);
    window.setOpenWebsiteHandler({});
    QVERIFY(!button->isVisible());
}

QTEST_MAIN(TestStatic)
#include "tst_static.moc"
