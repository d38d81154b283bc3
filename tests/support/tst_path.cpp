// SPDX-License-Identifier: MIT
#include "support/Path.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestPath : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void path_hasPieces_data();
    void path_hasPieces();
    void path_hasComponents_data();
    void path_hasComponents();
    void component_isAppended_data();
    void component_isAppended();
    void extension_isAppended_data();
    void extension_isAppended();
};

void TestPath::path_hasPieces_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("extension");
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("withoutExtension");

    const auto row = [](const char *path, const QString &name, const QString &extension,
                         const QString &folder, const QString &withoutExtension) {
        QTest::newRow(path) << name << extension << folder << withoutExtension;
    };
    row("/tmp/scratch.tiff", u"scratch.tiff"_s, u"tiff"_s, u"/tmp"_s, u"/tmp/scratch"_s);
    row("/tmp/scratch", u"scratch"_s, {}, u"/tmp"_s, u"/tmp/scratch"_s);
    row("/tmp/lock/", u"lock"_s, {}, u"/tmp"_s, u"/tmp/lock"_s);
    row("/tmp/", u"tmp"_s, {}, u"/"_s, u"/tmp"_s);
    row("/tmp", u"tmp"_s, {}, u"/"_s, u"/tmp"_s);
    row("/", u"/"_s, {}, u"/"_s, u"/"_s);
    row("///", u"/"_s, {}, u"/"_s, u"/"_s);
    row("", {}, {}, {}, {});
    row("scratch///", u"scratch"_s, {}, {}, u"scratch"_s);
    row("scratch.bundle/", u"scratch.bundle"_s, u"bundle"_s, {}, u"scratch"_s);
    row("scratch..tiff", u"scratch..tiff"_s, u"tiff"_s, {}, u"scratch."_s);
    row("a.b.mov", u"a.b.mov"_s, u"mov"_s, {}, u"a.b"_s);
    row(".tiff", u".tiff"_s, {}, {}, u".tiff"_s);
    row("/a.b/.tiff", u".tiff"_s, {}, u"/a.b"_s, u"/a.b/.tiff"_s);
    row("/tmp/.scratch.tiff", u".scratch.tiff"_s, u"tiff"_s, u"/tmp"_s, u"/tmp/.scratch"_s);
    row("a.d/b", u"b"_s, {}, u"a.d"_s, u"a.d/b"_s);
    row("closing.", u"closing."_s, {}, {}, u"closing"_s);
    row("//a//b.c", u"b.c"_s, u"c"_s, u"//a"_s, u"//a//b"_s);
    row("/\xF0\x9F\x8E\xAC.mov", u"🎬.mov"_s, u"mov"_s, u"/"_s, u"/🎬"_s);
    row("/new\nline.mp4", u"new\nline.mp4"_s, u"mp4"_s, u"/"_s, u"/new\nline"_s);
}

void TestPath::path_hasPieces()
{
    const QString path = QString::fromUtf8(QTest::currentDataTag());
    QTEST(Path::lastPathComponent(path), "name");
    QTEST(Path::pathExtension(path), "extension");
    QTEST(Path::stringByDeletingLastPathComponent(path), "folder");
    QTEST(Path::stringByDeletingPathExtension(path), "withoutExtension");
}

void TestPath::path_hasComponents_data()
{
    QTest::addColumn<QStringList>("components");

    QTest::newRow("") << QStringList();
    QTest::newRow("/") << QStringList{ u"/"_s };
    QTest::newRow("//") << QStringList{ u"/"_s };
    QTest::newRow("tmp/scratch") << QStringList{ u"tmp"_s, u"scratch"_s };
    QTest::newRow("/tmp//scratch.tiff") << QStringList{ u"/"_s, u"tmp"_s, u"scratch.tiff"_s };
    QTest::newRow("/tmp/") << QStringList{ u"/"_s, u"tmp"_s, u"/"_s };
    QTest::newRow("tmp/") << QStringList{ u"tmp"_s, u"/"_s };
}

void TestPath::path_hasComponents()
{
    QTEST(Path::pathComponents(QString::fromUtf8(QTest::currentDataTag())), "components");
}

void TestPath::component_isAppended_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("component");
    QTest::addColumn<QString>("joined");

    QTest::newRow("folder") << u"/tmp"_s << u"scratch.tiff"_s << u"/tmp/scratch.tiff"_s;
    QTest::newRow("closing separator") << u"/tmp/"_s << u"a"_s << u"/tmp/a"_s;
    QTest::newRow("opening separator") << u"/tmp"_s << u"/a"_s << u"/tmp/a"_s;
    QTest::newRow("separators between") << u"/tmp//"_s << u"//a/"_s << u"/tmp/a"_s;
    QTest::newRow("root") << u"/"_s << u"a"_s << u"/a"_s;
    QTest::newRow("nothing before") << QString() << u"a"_s << u"a"_s;
    QTest::newRow("nothing behind") << u"/tmp"_s << QString() << u"/tmp"_s;
    QTest::newRow("only separators behind") << u"/tmp"_s << u"//"_s << u"/tmp"_s;
    QTest::newRow("nothing") << QString() << QString() << QString();
}

void TestPath::component_isAppended()
{
    QFETCH(QString, path);
    QFETCH(QString, component);
    QTEST(Path::stringByAppendingPathComponent(path, component), "joined");
}

void TestPath::extension_isAppended_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("extension");
    QTest::addColumn<std::optional<QString>>("extended");

    using Text = std::optional<QString>;
    QTest::newRow("old") << u"/tmp/scratch.old"_s << u"tiff"_s << Text(u"/tmp/scratch.old.tiff"_s);
    QTest::newRow("closing dot") << u"/tmp/scratch."_s << u"tiff"_s
                                 << Text(u"/tmp/scratch..tiff"_s);
    QTest::newRow("separator") << u"/tmp/"_s << u"tiff"_s << Text(u"/tmp.tiff"_s);
    QTest::newRow("relative") << u"scratch"_s << u"tiff"_s << Text(u"scratch.tiff"_s);
    QTest::newRow("home folder's file") << u"~/a"_s << u"mov"_s << Text(u"~/a.mov"_s);
    QTest::newRow("no extension") << u"a"_s << QString() << Text();
    QTest::newRow("extension with separator") << u"a"_s << u"b/c"_s << Text();
    QTest::newRow("no path") << QString() << u"mov"_s << Text();
    QTest::newRow("root") << u"//"_s << u"mov"_s << Text();
    QTest::newRow("tilde") << u"~a"_s << u"mov"_s << Text();
}

void TestPath::extension_isAppended()
{
    QFETCH(QString, path);
    QFETCH(QString, extension);
    QTEST(Path::stringByAppendingPathExtension(path, extension), "extended");
}

QTEST_GUILESS_MAIN(TestPath)
#include "tst_path.moc"
