// SPDX-License-Identifier: MIT
#include "Answering.h"
#include "support/Defaults.h"
#include "support/dialogs/Sheets.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QWidget>

using namespace Qt::StringLiterals;

class TestSheets : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void saveSheet_looksAsItShould();
    void result_bearsTheExtension_data();
    void result_bearsTheExtension();
    void existingFile_isReplacedOnlyIfAgreed_data();
    void existingFile_isReplacedOnlyIfAgreed();
    void folder_isEnteredNotReplaced();
    void folderOfTheResultsName_isRefused();
    void cancelledSheet_callsNothing_data();
    void cancelledSheet_callsNothing();
    void saveFolder_isTheLastOneUsed();
    void chooseSheet_givesWhatItIsFor_data();
    void chooseSheet_givesWhatItIsFor();

private:
    void save(const QString &filename);
    [[nodiscard]] QFileDialog *sheet() const;
    void type(const QString &name) const;
    void write(const QString &name) const;
    [[nodiscard]] QString path(const QString &name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QWidget> m_window;
    QStringList m_paths;
};

namespace {

QLineEdit *nameField(const QFileDialog *dialog)
{
    return dialog->findChild<QLineEdit *>(u"fileNameEdit"_s);
}

QPushButton *acceptButton(const QFileDialog *dialog)
{
    const auto buttons = dialog->findChildren<QPushButton *>();
    for (QPushButton *button : buttons)
        if (button->isDefault())
            return button;
    return nullptr;
}

}

void TestSheets::init()
{
    Defaults::remove(u"LastSaveFolder"_s);
    Defaults::remove(u"LastOpenFolder"_s);
    m_paths.clear();
    m_folder = std::make_unique<QTemporaryDir>();
    m_window = std::make_unique<QWidget>();
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TestSheets::cleanup() { m_window.reset(); }

void TestSheets::save(const QString &filename)
{
    runSaveToSheet(
        m_window.get(), filename, u"mp4"_s, [this](const QString &path) { m_paths += path; },
        m_folder->path());
    QVERIFY(m_paths.isEmpty());
    QVERIFY(sheet());
    sheet()->activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), sheet());
}

QFileDialog *TestSheets::sheet() const { return m_window->findChild<QFileDialog *>(); }

void TestSheets::type(const QString &name) const
{
    QLineEdit *field = nameField(sheet());
    field->setFocus();
    field->selectAll();
    field->insert(name);
    QTest::keyClick(field, Qt::Key_Return);
}

void TestSheets::write(const QString &name) const
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
}

void TestSheets::saveSheet_looksAsItShould()
{
    save(u"a'b\"c 100%d"_s);
    QCOMPARE(sheet()->windowModality(), Qt::WindowModal);
    QCOMPARE(sheet()->windowTitle(), u"Convert"_s);
    QCOMPARE(acceptButton(sheet())->text().remove(u'&'), u"Convert"_s);
    QCOMPARE(sheet()->labelText(QFileDialog::FileName), u"Result filename:"_s);
    QCOMPARE(nameField(sheet())->text(), u"a'b\"c 100%d.mp4"_s);

    QTest::mouseClick(acceptButton(sheet()), Qt::LeftButton);
    QTRY_VERIFY(!sheet());
    QCOMPARE(m_paths, QStringList{ path(u"a'b\"c 100%d.mp4"_s) });
}

void TestSheets::result_bearsTheExtension_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("result");

    QTest::newRow("without") << u"film"_s << u"film.mp4"_s;
    QTest::newRow("with") << u"film.mp4"_s << u"film.mp4"_s;
    QTest::newRow("in capitals") << u"FILM.MP4"_s << u"FILM.MP4"_s;
    QTest::newRow("another") << u"film.mov"_s << u"film.mov.mp4"_s;
    QTest::newRow("a number's part") << u"Holiday 2.5"_s << u"Holiday 2.5.mp4"_s;
    QTest::newRow("closing dot") << u"film."_s << u"film.mp4"_s;
    QTest::newRow("only the extension") << u".mp4"_s << u".mp4.mp4"_s;
    QTest::newRow("quotation marks") << u"a \"b\" c"_s << u"a \"b\" c.mp4"_s;
    QTest::newRow("tilde") << u"~film"_s << u"~film.mp4"_s;
    QTest::newRow("option") << u"-i.mp4"_s << u"-i.mp4"_s;
    QTest::newRow("emoji") << u"🎬"_s << u"🎬.mp4"_s;
    QTest::newRow("other folder") << u"sub/film"_s << u"sub/film.mp4"_s;
    QTest::newRow("way round") << u"sub/../x"_s << u"x.mp4"_s;
}

void TestSheets::result_bearsTheExtension()
{
    QFETCH(QString, typed);
    QFETCH(QString, result);
    QVERIFY(QDir(m_folder->path()).mkdir(u"sub"_s));
    save(u"proposed"_s);
    type(typed);
    QTRY_VERIFY(!sheet());
    QCOMPARE(m_paths, QStringList{ path(result) });
}

void TestSheets::existingFile_isReplacedOnlyIfAgreed_data()
{
    QTest::addColumn<QString>("existing");
    QTest::addColumn<QString>("typed");

    QTest::newRow("as typed") << u"film.mp4"_s << u"film.mp4"_s;
    QTest::newRow("extension appended") << u"film.mp4"_s << u"film"_s;
    QTest::newRow("second extension") << u"film.mov.mp4"_s << u"film.mov"_s;
    QTest::newRow("mark-up") << u"<b>x<b>%d.mp4"_s << u"<b>x<b>%d"_s;
}

void TestSheets::existingFile_isReplacedOnlyIfAgreed()
{
    QFETCH(QString, existing);
    QFETCH(QString, typed);
    write(existing);
    save(u"proposed"_s);
    {
        const Answering refusal([&](QMessageBox &box) {
            QVERIFY2(box.text().contains(existing), qPrintable(box.text()));
            QCOMPARE(box.textFormat(), Qt::PlainText);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        });
        type(typed);
        QVERIFY(refusal.wasShown);
    }
    QVERIFY(sheet()->isVisible());
    QCOMPARE(nameField(sheet())->text(), typed);
    QVERIFY(m_paths.isEmpty());

    const Answering agreement([](QMessageBox &) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    });
    type(typed);
    QVERIFY(agreement.wasShown);
    QTRY_VERIFY(!sheet());
    QCOMPARE(m_paths, QStringList{ path(existing) });
}

void TestSheets::folder_isEnteredNotReplaced()
{
    QVERIFY(QDir(m_folder->path()).mkdir(u"sub"_s));
    save(u"film"_s);
    type(u"sub"_s);
    QVERIFY(sheet()->isVisible());
    QCOMPARE(sheet()->directory().path(), path(u"sub"_s));
    QCOMPARE(nameField(sheet())->text(), u"film.mp4"_s);
    QTest::keyClick(nameField(sheet()), Qt::Key_Return);
    QTRY_VERIFY(!sheet());
    QCOMPARE(m_paths, QStringList{ path(u"sub/film.mp4"_s) });
}

void TestSheets::folderOfTheResultsName_isRefused()
{
    QVERIFY(QDir(m_folder->path()).mkdir(u"film.mp4"_s));
    save(u"proposed"_s);
    const Answering answering([](QMessageBox &box) {
        QVERIFY2(box.text().contains(u"film.mp4"), qPrintable(box.text()));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    });
    type(u"film"_s);
    QVERIFY(answering.wasShown);
    QVERIFY(sheet()->isVisible());
    QVERIFY(m_paths.isEmpty());
}

void TestSheets::cancelledSheet_callsNothing_data()
{
    QTest::addColumn<bool>("isSaving");

    QTest::newRow("save") << true;
    QTest::newRow("choose") << false;
}

void TestSheets::cancelledSheet_callsNothing()
{
    QFETCH(bool, isSaving);
    if (isSaving)
        save(u"film"_s);
    else
        runChooseSheet(m_window.get(), true, [this](const QString &path) { m_paths += path; });
    QTest::keyClick(sheet(), Qt::Key_Escape);
    QTRY_VERIFY(!sheet());
    QVERIFY(m_paths.isEmpty());
    QVERIFY(!Defaults::value(u"LastSaveFolder"_s).isValid());
    QVERIFY(!Defaults::value(u"LastOpenFolder"_s).isValid());
}

void TestSheets::saveFolder_isTheLastOneUsed()
{
    QVERIFY(QDir(m_folder->path()).mkdir(u"sub"_s));
    QCOMPARE(saveFolder(m_folder->path()), m_folder->path());
    save(u"film"_s);
    type(u"sub/film"_s);
    QTRY_VERIFY(!sheet());
    QCOMPARE(saveFolder(m_folder->path()), path(u"sub"_s));

    m_paths.clear();
    save(u"film"_s);
    QCOMPARE(sheet()->directory().path(), path(u"sub"_s));
    QTest::keyClick(sheet(), Qt::Key_Escape);
    QTRY_VERIFY(!sheet());
    QVERIFY(QDir(path(u"sub"_s)).removeRecursively());
    QCOMPARE(saveFolder(m_folder->path()), m_folder->path());
}

void TestSheets::chooseSheet_givesWhatItIsFor_data()
{
    QTest::addColumn<bool>("files");
    QTest::addColumn<QString>("refused");
    QTest::addColumn<QString>("chosen");

    QTest::newRow("files") << true << u"sub"_s << u"film.mp4"_s;
    QTest::newRow("folders") << false << u"film.mp4"_s << u"sub"_s;
}

void TestSheets::chooseSheet_givesWhatItIsFor()
{
    QFETCH(bool, files);
    QFETCH(QString, refused);
    QFETCH(QString, chosen);
    QVERIFY(QDir(m_folder->path()).mkdir(u"sub"_s));
    write(u"film.mp4"_s);
    Defaults::setValue(u"LastOpenFolder"_s, m_folder->path());
    runChooseSheet(m_window.get(), files, [this](const QString &path) { m_paths += path; });
    QCOMPARE(sheet()->windowModality(), Qt::WindowModal);
    QCOMPARE(sheet()->directory().path(), m_folder->path());
    QVERIFY(!sheet()->testOption(QFileDialog::ReadOnly));
    sheet()->activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), sheet());
    {
        const Answering warning([](QMessageBox &box) { box.close(); });
        type(path(refused));
    }
    QVERIFY(sheet()->isVisible());
    QVERIFY(m_paths.isEmpty());

    type(path(chosen));
    QTRY_VERIFY(!sheet());
    QCOMPARE(m_paths, QStringList{ path(chosen) });
    QCOMPARE(Defaults::value(u"LastOpenFolder"_s).toString(), m_folder->path());
}

int main(int argc, char *argv[])
{
    // The desktop's own dialogs belong to another process and hear no events of ours.
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication app(argc, argv);
    TestSheets test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_sheets.moc"
