// SPDX-License-Identifier: MIT
#include "SheetTest.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

/// Sheets drawn by the toolkit itself.
class TestSheets : public SheetTest {
    Q_OBJECT

private:
    void save(const QString &filename)
    {
        paths.clear();
        runSave(filename);
        QVERIFY(sheet() && paths.isEmpty());
        sheet()->activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), sheet());
    }

    [[nodiscard]] QFileDialog *sheet() const { return window->findChild<QFileDialog *>(); }

    [[nodiscard]] QLineEdit *nameField() const
    {
        return sheet()->findChild<QLineEdit *>(u"fileNameEdit"_s);
    }

    void type(const QString &name) const
    {
        nameField()->setFocus();
        nameField()->selectAll();
        nameField()->insert(name);
        QTest::keyClick(nameField(), Qt::Key_Return);
    }

private Q_SLOTS:
    void init()
    {
        setUp();
        QVERIFY(QDir(folder->path()).mkdir(u"sub"_s));
    }

    void cleanup() { window.reset(); }

    void saveSheet_looksAsItShould()
    {
        save(u"a'b\"c 100%d"_s);
        const auto *buttons = sheet()->findChild<QDialogButtonBox *>();
        QPushButton *accept = buttons->button(QDialogButtonBox::Save);
        QVERIFY(accept->isDefault() && sheet()->windowModality() == Qt::WindowModal);
        QCOMPARE(sheet()->labelText(QFileDialog::FileName), u"Result filename:"_s);
        QCOMPARE(nameField()->text(), u"a'b\"c 100%d.mp4"_s);
        QCOMPARE(nameField()->selectedText(), u"a'b\"c 100%d"_s);

        QVERIFY(sheet()->findChildren<QLabel *>().last()->text() == u"about 3 MB");
        QTest::mouseClick(accept, Qt::LeftButton);
        QTRY_VERIFY(!sheet());
        QCOMPARE(paths, QStringList{ path(u"a'b\"c 100%d.mp4"_s) });
    }

    void result_bearsTheExtension()
    {
        const std::pair<QString, QString> names[]{ { u"video"_s, u"video.mp4"_s },
            { u"VIDEO.MP4"_s, u"VIDEO.MP4"_s }, { u"video.mov"_s, u"video.mov.mp4"_s },
            { u"video."_s, u"video.mp4"_s }, { u".mp4"_s, u".mp4.mp4"_s },
            { u"a \"b\" c"_s, u"a \"b\" c.mp4"_s }, { u"~🎬"_s, u"~🎬.mp4"_s },
            { u"sub/../x"_s, u"x.mp4"_s }, { u":x"_s, u":x.mp4"_s } };
        for (const auto &[typed, result] : names) {
            save(u"proposed"_s);
            type(typed);
            QTRY_VERIFY(!sheet());
            QCOMPARE(paths, QStringList{ folder->path() + u'/' + result });
        }
    }

    void existingFile_isReplacedOnlyIfAgreed()
    {
        const QString typed = u"<b>x<b>%d"_s;
        const QString existing = typed + u".mp4"_s;
        folder->write(existing, {});
        save(u"proposed"_s);
        const Answering refusal(Answering::no());
        type(typed);
        QCOMPARE(refusal.text, u"“%1” already exists. Do you want to replace it?"_s.arg(existing));
        QVERIFY(sheet()->isVisible());
        QCOMPARE(nameField()->text(), typed);
        QVERIFY(paths.isEmpty());

        const Answering agreement(Answering::yes());
        type(typed);
        QTRY_VERIFY(!sheet());
        QCOMPARE(paths, QStringList{ path(existing) });
    }

    void folder_isEnteredNotReplaced()
    {
        QVERIFY(QDir(folder->path()).mkdir(u"video.mp4"_s));
        save(u"video"_s);
        const Answering answering(Answering::no());
        type(u"video"_s);
        QCOMPARE(answering.text, u"a folder"_s);
        QVERIFY(sheet()->isVisible() && paths.isEmpty());

        type(u"sub"_s);
        QCOMPARE(sheet()->directory().path(), path(u"sub"_s));
        QCOMPARE(nameField()->text(), u"video.mp4"_s);
        QTest::keyClick(nameField(), Qt::Key_Return);
        QTRY_VERIFY(!sheet());
        QCOMPARE(paths, QStringList{ path(u"sub/video.mp4"_s) });
    }

    void saveFolder_isTheLastOneOfSuchVideos()
    {
        save(u"video"_s);
        type(u"sub/video"_s);
        QTRY_VERIFY(!sheet());
        QCOMPARE(saveFolder(folder->path()), folder->path());
        rememberSaveFolder(folder->path(), path(u"sub"_s));
        QCOMPARE(saveFolder(folder->path()), path(u"sub"_s));
        QCOMPARE(saveFolder(QDir::rootPath()), QDir::rootPath());

        save(u"video"_s);
        QCOMPARE(sheet()->directory().path(), path(u"sub"_s));
        QTest::keyClick(sheet(), Qt::Key_Escape);
        QTRY_VERIFY(!sheet());
        QVERIFY(QDir(path(u"sub"_s)).removeRecursively());
        QCOMPARE(saveFolder(folder->path()), folder->path());
    }

    void chooseSheet_givesWhatItIsFor()
    {
        folder->write(u"video.mp4"_s, {});
        for (const bool files : { true, false }) {
            const QString chosen = path(files ? u"video.mp4"_s : u"sub"_s);
            const QString refused = path(files ? u"sub"_s : u"video.mp4"_s);
            paths.clear();
            Defaults::setValue(u"LastOpenFolder"_s, folder->path());
            runChooseSheet(window.get(), files, [this](const QString &given) { paths += given; });
            QCOMPARE(sheet()->directory().path(), folder->path());
            sheet()->activateWindow();
            QTRY_COMPARE(QApplication::activeWindow(), sheet());
            {
                const Answering warning(&QMessageBox::close);
                type(refused);
            }
            QVERIFY(sheet()->isVisible() && paths.isEmpty());

            type(chosen);
            QTRY_VERIFY(!sheet());
            QCOMPARE(paths, QStringList{ chosen });
            QCOMPARE(Defaults::value(u"LastOpenFolder"_s).toString(), folder->path());
        }
    }
};

int main(int argc, char *argv[])
{
    // The desktop's own dialogs belong to another process and hear no events of ours.
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const QApplication app(argc, argv);
    TestSheets test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_sheets.moc"
