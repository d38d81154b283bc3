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

template <class Number> QJsonValue valueOrNull(const std::optional<Number> &number)
{
    return number ? QJsonValue(*number) : QJsonValue(QJsonValue::Null);
}

void print(const QJsonObject &object)
{
    Output::json(QJsonDocument(object), QJsonDocument::Compact);
}

QJsonObject withRemarks(QJsonObject object, const Outcome &outcome)
{
    // In the order of the remedies.
    constexpr std::array remedies{ ""_L1, "cover-left-out"_L1, "size-made-even"_L1,
        "sound-encoded"_L1, "picture-encoded"_L1 };
    QStringList names;
    for (const Remedy remedy : outcome.remedies)
        names << remedies.at(static_cast<std::size_t>(remedy));
    if (!names.isEmpty())
        object[u"remedy"_s] = names.join(u' ');
    if (outcome.damagedPlaces > 0)
        object[u"damage"_s] = QJsonObject{ { u"places"_s, outcome.damagedPlaces },
            { u"first"_s, valueOrNull(outcome.firstDamage) } };
    if (!outcome.olderPath.isEmpty())
        object[u"olderFile"_s] = outcome.olderPath;
    return object;
}

int exitStatus(ExitCode code)
{
    const int status = static_cast<int>(code);
    return code == ExitCode::Cancelled ? status + Interruption::signal() : status;
}

}

std::chrono::milliseconds JsonReporter::interval() const { return 500ms; }

void JsonReporter::started(const ConversionItem &item)
{
    m_lastCompleted = -1;
    print({ { u"event"_s, u"started"_s }, { u"input"_s, item.path },
        { u"output"_s, item.destPath } });
}

void JsonReporter::progressed(const ConversionItem &item, const ProgressSample &sample)
{
    if (sample.completed == m_lastCompleted)
        return;
    m_lastCompleted = sample.completed;
    const auto total = sample.total > 0 ? std::optional(sample.total) : std::nullopt;
    print({ { u"event"_s, u"progress"_s }, { u"input"_s, item.path },
        { u"seconds"_s, sample.completed }, { u"total"_s, valueOrNull(total) },
        { u"percent"_s, valueOrNull(sample.percent()) },
        { u"speed"_s, valueOrNull(sample.speed()) }, { u"left"_s, valueOrNull(sample.left) } });
}

void JsonReporter::converted(
    const ConversionItem &item, const Outcome &outcome, std::chrono::milliseconds elapsed)
{
    print(withRemarks(
        { { u"event"_s, u"converted"_s }, { u"input"_s, item.path }, { u"output"_s, item.destPath },
            { u"size"_s, static_cast<qint64>(fileSize(item.destPath)) },
            { u"elapsed"_s, static_cast<double>(elapsed.count()) / 1000 } },
        outcome));
}

void JsonReporter::failed(const ConversionItem &item, const Outcome &outcome)
{
    print(withRemarks(
        { { u"event"_s, kindOf(outcome) == OutcomeKind::Cancelled ? u"cancelled"_s : u"failed"_s },
            { u"input"_s, item.path }, { u"output"_s, item.destPath },
            { u"code"_s, exitStatus(exitCodeOf(kindOf(outcome))) },
            { u"message"_s, Output::reportedSentence(outcome) } },
        outcome));
    printFailure(item, outcome);
}

void JsonReporter::summedUp(int converted, int all)
{
    print({ { u"event"_s, u"summary"_s }, { u"converted"_s, converted }, { u"all"_s, all } });
}
