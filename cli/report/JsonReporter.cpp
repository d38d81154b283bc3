// SPDX-License-Identifier: MIT
#include "cli/report/Output.h"
#include "cli/report/Reporter.h"
#include "support/Interruption.h"

#include <QFileInfo>
#include <QJsonObject>

#include <array>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

template <class Number> QJsonValue valueOrNull(const std::optional<Number> &number)
{
    return number ? QJsonValue(*number) : QJsonValue();
}

QJsonValue positiveOrNull(qint64 number) { return number > 0 ? QJsonValue(number) : QJsonValue(); }

QJsonValue textOrNull(const QString &text) { return text.isEmpty() ? QJsonValue() : text; }

void print(const QString &event, const ConversionItem &item, QJsonObject object)
{
    object[u"event"_s] = event;
    object[u"input"_s] = textOrNull(item.input.path);
    object[u"output"_s] = textOrNull(item.destPath);
    Output::json(QJsonDocument(object), QJsonDocument::Compact);
}

QString nameOf(StreamWork work)
{
    constexpr std::array names{ "left-out"_L1, "copied"_L1, "encoded"_L1 };
    return names.at(static_cast<std::size_t>(work));
}

void addRemarks(QJsonObject &object, const Outcome &outcome)
{
    QStringList names;
    for (const Remedy remedy : outcome.remedies)
        names << nameOf(remedy);
    if (!names.isEmpty())
        object[u"remedy"_s] = names.join(u' ');
    if (outcome.damagedPlaces > 0)
        object[u"damage"_s] = QJsonObject{ { u"places"_s, outcome.damagedPlaces },
            { u"first"_s, valueOrNull(outcome.firstDamage) } };
    if (!outcome.olderPath.isEmpty())
        object[u"olderFile"_s] = outcome.olderPath;
}

QJsonObject failureObject(const Outcome &outcome)
{
    const ExitCode code = exitCodeOf(kindOf(outcome));
    const int signal = code == ExitCode::Cancelled ? Interruption::signal() : 0;
    QJsonObject object{ { u"reason"_s, QString(nameOf(outcome)) },
        { u"code"_s, static_cast<int>(code) + signal },
        { u"message"_s, Output::reportedSentence(outcome) },
        { u"kept"_s, kindOf(outcome) == OutcomeKind::Incomplete } };
    if (outcome.reason == Reason::Incomplete)
        object[u"seconds"_s] = outcome.seconds;
    addRemarks(object, outcome);
    return object;
}

class JsonReporter : public Reporter {
public:
    [[nodiscard]] std::chrono::milliseconds interval() const override { return 500ms; }

    void started(const ConversionItem &item) override { print(u"started"_s, item, {}); }

    void progressed(const std::vector<RunningSample> &running, const BatchSum & /*sum*/,
        const ProgressSample & /*whole*/) override
    {
        for (const auto &[item, sample, lastReported] : running) {
            if (std::exchange(lastReported, sample.completed) == sample.completed)
                continue;
            print(u"progress"_s, item,
                { { u"seconds"_s, sample.completed }, { u"total"_s, positiveOrNull(sample.total) },
                    { u"percent"_s, valueOrNull(sample.percent()) },
                    { u"speed"_s, valueOrNull(sample.speed()) },
                    { u"left"_s, valueOrNull(sample.left) } });
        }
    }

    void converted(const ConversionItem &item, const ConvertedVideo &video) override
    {
        QJsonObject object{ { u"size"_s, QFileInfo(item.destPath).size() },
            { u"seconds"_s, positiveOrNull(video.seconds) },
            { u"elapsed"_s, static_cast<double>(video.elapsed.count()) / 1000 },
            { u"kept"_s, true }, { u"picture"_s, nameOf(video.work.picture) },
            { u"sound"_s, nameOf(video.work.sound) } };
        addRemarks(object, video.outcome);
        print(u"converted"_s, item, object);
    }

    void skipped(const ConversionItem &item) override
    {
        print(u"skipped"_s, item, { { u"reason"_s, u"whole-result-exists"_s } });
    }

    void leftOut(const ConversionItem &item, const Outcome &outcome) override
    {
        print(u"skipped"_s, { item.input, {} }, { { u"reason"_s, QString(nameOf(outcome)) } });
    }

    void failed(const ConversionItem &item, const Outcome &outcome) override
    {
        QJsonObject object = failureObject(outcome);
        if (kindOf(outcome) == OutcomeKind::Incomplete)
            object[u"size"_s] = QFileInfo(item.destPath).size();
        const bool isCancelled = kindOf(outcome) == OutcomeKind::Cancelled;
        print(isCancelled ? u"cancelled"_s : u"failed"_s, item, object);
    }

    void summedUp(const BatchSum &sum) override
    {
        print(u"summary"_s, {},
            { { u"converted"_s, qint64(sum.converted) }, { u"skipped"_s, qint64(sum.skipped) },
                { u"failed"_s, qint64(sum.failed) }, { u"all"_s, qint64(sum.all) } });
    }

    void refused(const QString &name, const Outcome &outcome) override
    {
        ConversionItem item;
        const bool isInput = kindOf(outcome) == OutcomeKind::InputRefused;
        (isInput ? item.input.path : item.destPath) = absolutePath(name);
        print(u"refused"_s, item, failureObject(outcome));
    }
};

}

std::unique_ptr<Reporter> jsonReporter() { return std::make_unique<JsonReporter>(); }

void printMisuse(const QString &message)
{
    print(u"refused"_s, {},
        { { u"reason"_s, u"usage"_s }, { u"code"_s, static_cast<int>(ExitCode::Usage) },
            { u"message"_s, message }, { u"kept"_s, false } });
}
