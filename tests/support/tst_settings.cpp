// SPDX-License-Identifier: MIT
#include "support/Defaults.h"
#include "support/Preferences.h"

#include <QFile>
#include <QSettings>
#include <QTest>

using namespace Qt::StringLiterals;

class TestSettings : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void registeredDefault_isNeverWritten();
    void storedValue_winsOverTheRegisteredOne();
    void firstRun_isRemembered();
    void firstLaunch_isRecordedOnce();
    void firstLaunchOfOtherType_isReplaced_data();
    void firstLaunchOfOtherType_isReplaced();
    void key_isItsExactText_data();
    void key_isItsExactText();

private:
    // Reads the store as another run of the program does, from the disk.
    static QVariant readByAnotherRun(const QString &key);
};

void TestSettings::init()
{
    Preferences::registerDefaults();
    Defaults::remove(u"IsFirstRun"_s);
    Defaults::remove(u"FirstLaunch"_s);
    QVERIFY(!readByAnotherRun(u"IsFirstRun"_s).isValid());
}

QVariant TestSettings::readByAnotherRun(const QString &key)
{
    const QString file = QSettings(u"VideoConverter"_s, u"VideoConverter"_s).fileName();
    const QString copy = file + ".copy"_L1;
    QFile::remove(copy);
    QFile::copy(file, copy);
    return QSettings(copy, QSettings::IniFormat).value(key);
}

void TestSettings::registeredDefault_isNeverWritten()
{
    QVERIFY(Preferences::isFirstRun());
    QVERIFY(!readByAnotherRun(u"IsFirstRun"_s).isValid());
    Defaults::registerDefaults({ { u"Other"_s, 7 } });
    QCOMPARE(Defaults::value(u"Other"_s), QVariant(7));
    QVERIFY(Preferences::isFirstRun());
    QVERIFY(!Defaults::value(u"None"_s).isValid());
}

void TestSettings::storedValue_winsOverTheRegisteredOne()
{
    Defaults::registerDefaults({ { u"Other"_s, u"registered"_s } });
    Defaults::setValue(u"Other"_s, u""_s);
    QCOMPARE(Defaults::value(u"Other"_s), QVariant(u""_s));
    Defaults::remove(u"Other"_s);
    QCOMPARE(Defaults::value(u"Other"_s), QVariant(u"registered"_s));
}

void TestSettings::firstRun_isRemembered()
{
    Preferences::setFirstRun(false);
    QVERIFY(!Preferences::isFirstRun());
    QCOMPARE(readByAnotherRun(u"IsFirstRun"_s).toString(), u"false"_s);
    Preferences::setFirstRun(true);
    QVERIFY(Preferences::isFirstRun());
}

void TestSettings::firstLaunch_isRecordedOnce()
{
    const QDateTime before = QDateTime::currentDateTime();
    const QDateTime first = Preferences::firstLaunchDate();
    QVERIFY(first >= before && first <= QDateTime::currentDateTime());

    const QDateTime stored = Preferences::firstLaunchDate();
    QVERIFY(stored >= before && stored <= first);
    QCOMPARE(Preferences::firstLaunchDate(), stored);
    QCOMPARE(readByAnotherRun(u"FirstLaunch"_s), QVariant(stored));

    const QDateTime other = QDateTime::fromMSecsSinceEpoch(1'000'000'000'123);
    Preferences::setFirstLaunchDate(other);
    QCOMPARE(Preferences::firstLaunchDate(), other);
}

void TestSettings::firstLaunchOfOtherType_isReplaced_data()
{
    QTest::addColumn<QVariant>("stored");

    QTest::newRow("text") << QVariant(u"2020-01-02T03:04:05"_s);
    QTest::newRow("number") << QVariant(5);
    QTest::newRow("list") << QVariant(QStringList{ u"a"_s, u"b"_s });
}

void TestSettings::firstLaunchOfOtherType_isReplaced()
{
    QFETCH(QVariant, stored);
    const QDateTime before = QDateTime::currentDateTime();
    Defaults::setValue(u"FirstLaunch"_s, stored);
    QVERIFY(Preferences::firstLaunchDate() >= before);
    QVERIFY(readByAnotherRun(u"FirstLaunch"_s).toDateTime() >= before);
}

void TestSettings::key_isItsExactText_data()
{
    QTest::addColumn<std::optional<PreferencesKeys>>("key");

    using Key = std::optional<PreferencesKeys>;
    QTest::newRow("IsFirstRun") << Key(PreferencesKeys::IsFirstRun);
    QTest::newRow("FirstLaunch") << Key(PreferencesKeys::FirstLaunch);
    for (const char *other : { "isFirstRun", "firstlaunch", "FirstLaunch ", "", "GA" })
        QTest::newRow(other) << Key();
}

void TestSettings::key_isItsExactText()
{
    const QString text = QString::fromUtf8(QTest::currentDataTag());
    const auto key = preferencesKey(text);
    QTEST(key, "key");
    if (key)
        QCOMPARE(rawValue(*key), text);
}

QTEST_GUILESS_MAIN(TestSettings)
#include "tst_settings.moc"
