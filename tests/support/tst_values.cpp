// SPDX-License-Identifier: MIT
#include "support/Configuration.h"
#include "support/Defaults.h"
#include "support/DurationInfo.h"
#include "support/JSON.h"
#include "support/Localized.h"
#include "support/Path.h"
#include "support/Preferences.h"
#include "support/Text.h"

#include <QFile>
#include <QSettings>
#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 largest = std::numeric_limits<qint64>::max();
constexpr qint64 smallest = std::numeric_limits<qint64>::min();

/// Name, extension, folder and the path without its extension.
QString pieces(const QString &path)
{
    return QStringList{ Path::lastPathComponent(path), Path::pathExtension(path),
        Path::stringByDeletingLastPathComponent(path), Path::stringByDeletingPathExtension(path) }
        .join(u" | "_s);
}

/// What string(), stringValue(), integer() and intValue() read; "-" is absent.
QString readings(const QByteArray &value)
{
    const JSON json = JSON::parse('[' + value + ']').array().at(0);
    const std::optional<qint64> integer = json.integer();
    return QStringList{ json.string().value_or(u"-"_s), json.stringValue(),
        integer ? QString::number(*integer) : u"-"_s, QString::number(json.intValue()) }
        .join(u" | "_s);
}

}

/// Functions from values to values, and the values of settings and environment.
class TestValues : public QObject {
    Q_OBJECT

    /// What another run of the program would read.
    static QString settings()
    {
        QFile file(QSettings(u"VideoConverter"_s, u"VideoConverter"_s).fileName());
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

private Q_SLOTS:
    void path_isTakenApartAndJoined()
    {
        QCOMPARE(pieces(u"/tmp/a.b.tiff"_s), u"a.b.tiff | tiff | /tmp | /tmp/a.b"_s);
        QCOMPARE(pieces(u"///"_s), u"/ |  | / | /"_s);
        QCOMPARE(pieces(u""_s), u" |  |  | "_s);
        QCOMPARE(pieces(u"scratch..bundle//"_s), u"scratch..bundle | bundle |  | scratch."_s);
        QCOMPARE(pieces(u"/a.b/.tiff"_s), u".tiff |  | /a.b | /a.b/.tiff"_s);
        QCOMPARE(pieces(u"a.d/closing."_s), u"closing. |  | a.d | a.d/closing"_s);
        QCOMPARE(pieces(u"//a//🎬\n.c"_s), u"🎬\n.c | c | //a | //a//🎬\n"_s);
        const auto joined = Path::stringByAppendingPathComponent;
        QCOMPARE(joined(u"/tmp//"_s, u"//a.b/"_s), u"/tmp/a.b"_s);
        QCOMPARE(joined(u"/"_s, u"a"_s), u"/a"_s);
    }

    void json_readsLeniently()
    {
        QCOMPARE(readings(R"("h264")"), u"h264 | h264 | - | 0"_s);
        QCOMPARE(readings(R"(" -12.9 kb")"), u" -12.9 kb |  -12.9 kb | - | -12"_s);
        QCOMPARE(readings(R"("1e99")"), u"1e99 | 1e99 | - | 0"_s);
        QCOMPARE(readings("0"), u"- | 0 | 0 | 0"_s);
        QCOMPARE(readings("-29.97"), u"- | -29.97 | -29 | -29"_s);
        QCOMPARE(readings("9223372036854775807").section(u'|', 3), u" 9223372036854775807"_s);
        QCOMPARE(readings("9223372036854775808").section(u'|', 2), u" - | 0"_s);
        QCOMPARE(readings("true"), u"- | true | - | 1"_s);
        for (const char *other : { "null", "[1]", R"({"a":1})" })
            QCOMPARE(readings(other), u"- |  | - | 0"_s);
    }

    void longText_isCapped()
    {
        QCOMPARE(Text::max(QString(25, u'a'), 25), QString(25, u'a'));
        QCOMPARE(Text::max(QString(26, u'a'), 25), QString(24, u'a') + u'…');
        const QString accents = u"e\u0301"_s.repeated(26);
        QCOMPARE(Text::max(accents.first(50), 25), accents.first(50));
        QCOMPARE(Text::max(accents, 25), accents.first(48) + u'…');
    }

    void number_isReadOrZero()
    {
        QCOMPARE(Text::asInt(u"+007"), 7);
        QCOMPARE(Text::asInt64(u"9223372036854775807"), largest);
        QCOMPARE(Text::asInt64(u"-9223372036854775808"), smallest);
        for (const QString &text : { u""_s, u"+"_s, u"+-7"_s, u" 42"_s, u"42.0"_s, u"4k"_s,
                 u"9223372036854775808"_s, u"٣"_s, u"1,000"_s })
            QCOMPARE(Text::asInt64(text), 0);
    }

    void pattern_findsGroup()
    {
        const QString line = u"  Duration: 00:01:02.50, start: 0.000"_s;
        QCOMPARE(Pattern::matchPattern(line, u"Duration: (.*?), start:"_s, 1), u"00:01:02.50"_s);
        for (const QString &pattern : { u"("_s, u"(duration)"_s, u"(x)?start"_s })
            QCOMPARE(Pattern::matchPattern(line, pattern, 1), QString());
        QCOMPARE(Pattern::matchPattern(u"x\rab\rac"_s, u"^a(.)$"_s, 1), u"b"_s);
        QCOMPARE(Pattern::matchPattern(u"a\n\r\u2028b"_s, u"a(.*)b"_s, 1), u"\n\r\u2028"_s);
        // Four characters in seven units: only the first four units are searched.
        QCOMPARE(Pattern::matchPattern(u"🎬🎬🎬b"_s, u"(b)"_s, 1), QString());
        QCOMPARE(Pattern::matchPattern(u"ab🎬🎬🎬"_s, u"a(b)"_s, 1), u"b"_s);

        const QRegularExpression lineStart = Pattern::compiled(u"^b.*"_s);
        QCOMPARE(Pattern::matchRegex(u"a\nb"_s, lineStart, 0), QString());
        QCOMPARE(Pattern::matchRegex(u"bc\rd"_s, lineStart, 0), u"bc"_s);
    }

    void directives_areFilled()
    {
        const std::vector<FormatArgument> pair{ 5, u"x"_s };
        QCOMPARE(formatted(u"%ld%03d%-5.2s"_s, { 1, 2, u"long"_s }), u"12long"_s);
        QCOMPARE(formatted(u"%u"_s, { smallest }), u"-9223372036854775808"_s);
        QCOMPARE(formatted(u"%2$@ %1$d %2$s"_s, pair), u"x 5 x"_s);
        QCOMPARE(formatted(u"%d%% %%d %%%d"_s, pair), u"5% %d %x"_s);
        QCOMPARE(formatted(u"%d-%@-%s-%9$d-%0$d"_s, pair), u"5-x---"_s);
        for (const QString &text :
            { u"100% %n %f %*d %1$ %l"_s, u"%99999999999d %99999999999$d"_s })
            QCOMPARE(formatted(text, pair), text);
        QCOMPARE(formatted(u"%@ %@"_s, { u"%@%n%d"_s, u"100%d.mp4"_s }), u"%@%n%d 100%d.mp4"_s);
    }

    void duration_isShown()
    {
        const auto shown = [](qint64 seconds) { return DurationInfo(seconds).toString(); };
        QCOMPARE(shown(3600), u"1h 0m 0s"_s);
        QCOMPARE(shown(90061), u"1d 25h 1m 1s"_s);
        QCOMPARE(shown(largest), u"106751991167300d 2562047788015215h 30m 7s"_s);
        QCOMPARE(shown(-65), u"-5s"_s);
    }

    void address_isReplacedByLoopbackOnly()
    {
        using namespace Configuration;
        for (const auto &[variable, value] :
            { std::pair{ "VIDEO_CONVERTER_COLLECTOR_URL", &collectorUrl },
                std::pair{ "VIDEO_CONVERTER_FEED_URL", &feedUrl },
                std::pair{ "VIDEO_CONVERTER_CRASH_URL", &crashUrl } }) {
            const QString built = value();
            for (const char *own : { "http://127.0.0.1:8080/a", "https://[::1]:1/" }) {
                qputenv(variable, own);
                QCOMPARE(value(), QString::fromUtf8(own));
            }
            for (const char *other : { "http://127.0.0.1.example.org/",
                     "http://localhost@example.org/", "http://example.org/127.0.0.1", "//127.0.0.1",
                     "127.0.0.1:80", "file://localhost/etc/passwd" }) {
                qputenv(variable, other);
                QVERIFY2(value() == built, other);
            }
            qunsetenv(variable);
        }
    }

    void registeredDefault_isNeverWritten()
    {
        Preferences::registerDefaults();
        Defaults::remove(u"IsFirstRun"_s);
        QVERIFY(Preferences::isFirstRun());
        QVERIFY2(!settings().contains(u"IsFirstRun"_s), qPrintable(settings()));
        Preferences::setFirstRun(false);
        QVERIFY(!Preferences::isFirstRun());
        QVERIFY2(settings().contains(u"IsFirstRun=false"_s), qPrintable(settings()));
        Defaults::remove(u"IsFirstRun"_s);
    }
};

QTEST_GUILESS_MAIN(TestValues)
#include "tst_values.moc"
