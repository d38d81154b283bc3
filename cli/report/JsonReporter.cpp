// SPDX-License-Identifier: MIT
#include "cli/report/JsonReporter.h"

#include "cli/report/Output.h"
#include "support/FileSystem.h"
#include "support/Interruption.h"

#include <QJsonObject>

#include <array>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Fields = QList<std::pair<QString, QJsonValue>>;

template <class Number> QJsonValue valueOrNull(const std::optional<Number> &number)
{
    return number ? QJsonValue(*number) : QJsonValue(QJsonValue::Null);
}

QJsonValue textOrNull(const QString &text)
{
    return text.isEmpty() ? QJsonValue(QJsonValue::Null) : QJsonValue(text);
}

void print(const QString &event, const QString &input, const QString &output, const Fields &fields)
{
    QJsonObject object{ { u"event"_s, event }, { u"input"_s, textOrNull(input) },
        { u"output"_s, textOrNull(output) } };
    for (const auto &[name, value] : fields)
        object[name] = value;
    Output::json(QJsonDocument(object), QJsonDocument::Compact);
}

void print(const QString &event, const ConversionItem &item, const Fields &fields)
{
    print(event, item.input.path, item.destPath, fields);
}

QString nameOf(StreamWork work)
{
    constexpr std::array names{ "left-out"_L1, "copied"_L1, "encoded"_L1 };
    return names.at(static_cast<std::size_t>(work));
}

Fields remarkFields(const Outcome &outcome)
{
    // In the order of the remedies.
    constexpr std::array remedies{ ""_L1, "cover-left-out"_L1, "size-made-even"_L1,
        "sound-encoded"_L1, "picture-encoded"_L1 };
    Fields fields;
    QStringList names;
    for (const Remedy remedy : outcome.remedies)
        names << remedies.at(static_cast<std::size_t>(remedy));
    if (!names.isEmpty())
        fields.append({ u"remedy"_s, names.join(u' ') });
    if (outcome.damagedPlaces > 0)
        fields.append({ u"damage"_s,
            QJsonObject{ { u"places"_s, outcome.damagedPlaces },
                { u"first"_s, valueOrNull(outcome.firstDamage) } } });
    if (!outcome.olderPath.isEmpty())
        fields.append({ u"olderFile"_s, outcome.olderPath });
    return fields;
}

int exitStatus(ExitCode code)
{
    const int status = static_cast<int>(code);
    return code == ExitCode::Cancelled ? status + Interruption::signal() : status;
}

Fields failureFields(const Outcome &outcome)
{
    const bool isKept = kindOf(outcome) == OutcomeKind::Incomplete;
    Fields fields{ { u"reason"_s, QString(nameOf(outcome)) },
        { u"code"_s, exitStatus(exitCodeOf(kindOf(outcome))) },
        { u"message"_s, Output::reportedSentence(outcome) }, { u"kept"_s, isKept } };
    if (outcome.reason == Reason::Incomplete)
        fields.append({ u"seconds"_s, outcome.seconds });
    return fields + remarkFields(outcome);
}

}

std::chrono::milliseconds JsonReporter::interval() const { return 500ms; }

void JsonReporter::started(const ConversionItem &item)
{
    m_lastCompleted[item.input.path] = -1;
    print(u"started"_s, item, {});
}

void JsonReporter::progressed(const std::vector<RunningSample> &running, const BatchSum & /*sum*/,
    const ProgressSample & /*whole*/)
{
    for (const auto &[item, sample] : running) {
        if (std::exchange(m_lastCompleted[item->input.path], sample.completed) == sample.completed)
            continue;
        const auto total = sample.total > 0 ? std::optional(sample.total) : std::nullopt;
        print(u"progress"_s, *item,
            { { u"seconds"_s, sample.completed }, { u"total"_s, valueOrNull(total) },
                { u"percent"_s, valueOrNull(sample.percent()) },
                { u"speed"_s, valueOrNull(sample.speed()) },
                { u"left"_s, valueOrNull(sample.left) } });
    }
}

void JsonReporter::converted(const ConversionItem &item, const ConvertedVideo &video)
{
    m_lastCompleted.remove(item.input.path);
    const auto seconds = video.seconds > 0 ? std::optional(video.seconds) : std::nullopt;
    print(u"converted"_s, item,
        Fields{ { u"size"_s, static_cast<qint64>(fileSize(item.destPath)) },
            { u"seconds"_s, valueOrNull(seconds) },
            { u"elapsed"_s, static_cast<double>(video.elapsed.count()) / 1000 },
            { u"kept"_s, true }, { u"picture"_s, nameOf(video.work.picture) },
            { u"sound"_s, nameOf(video.work.sound) } }
            + remarkFields(video.outcome));
}

void JsonReporter::skipped(const ConversionItem &item)
{
    print(u"skipped"_s, item, { { u"reason"_s, u"whole-result-exists"_s } });
}

void JsonReporter::leftOut(const ConversionItem &item, const Outcome &outcome)
{
    print(u"skipped"_s, item.input.path, {}, { { u"reason"_s, QString(nameOf(outcome)) } });
}

void JsonReporter::failed(const ConversionItem &item, const Outcome &outcome)
{
    m_lastCompleted.remove(item.input.path);
    const bool isCancelled = kindOf(outcome) == OutcomeKind::Cancelled;
    Fields fields = failureFields(outcome);
    if (kindOf(outcome) == OutcomeKind::Incomplete)
        fields.append({ u"size"_s, static_cast<qint64>(fileSize(item.destPath)) });
    print(isCancelled ? u"cancelled"_s : u"failed"_s, item, fields);
    printFailure(item, outcome);
}

void JsonReporter::summedUp(const BatchSum &sum)
{
    print(u"summary"_s, {}, {},
        { { u"converted"_s, qint64(sum.converted) }, { u"skipped"_s, qint64(sum.skipped) },
            { u"failed"_s, qint64(sum.failed) }, { u"all"_s, qint64(sum.all) } });
}

ExitCode JsonReporter::refused(const QString &name, const Outcome &outcome)
{
    const bool isInput = kindOf(outcome) == OutcomeKind::InputRefused;
    print(u"refused"_s, isInput ? name : QString(), isInput ? QString() : name,
        failureFields(outcome));
    return Reporter::refused(name, outcome);
}

void JsonReporter::misused(const QString &message)
{
    print(u"refused"_s, {}, {},
        { { u"reason"_s, u"usage"_s }, { u"code"_s, static_cast<int>(ExitCode::Usage) },
            { u"message"_s, message }, { u"kept"_s, false } });
}
