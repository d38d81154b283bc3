// SPDX-License-Identifier: MIT
#include "engine/Progress.h"

#include <QTest>

class TestProgress : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fraction_isZeroWithoutATotal();
    void observers_hearTheirKeyOnTheWritingThread();
    void observers_areRemovedByKeyAndContext();
    void cancellationHandler_runsOnceWhenever_data();
    void cancellationHandler_runsOnceWhenever();
    void endHandler_runsAlsoWhenSetLate();
};

void TestProgress::fraction_isZeroWithoutATotal()
{
    Progress progress(-1);
    QVERIFY(progress.isIndeterminate());
    progress.setCompletedUnitCount(5);
    QCOMPARE(progress.fractionCompleted(), 0.0);
    progress.setTotalUnitCount(20);
    QCOMPARE(progress.fractionCompleted(), 0.25);
    progress.setTotalUnitCount(0);
    QCOMPARE(progress.fractionCompleted(), 0.0);
}

void TestProgress::observers_hearTheirKeyOnTheWritingThread()
{
    using Key = Progress::Key;
    Progress progress(100);
    QList<Key> heard;
    const auto hear = [&](Key key) { heard.append(key); };
    progress.addObserver(Key::FractionCompleted, this, hear);
    progress.addObserver(Key::CompletedUnitCount, this, hear);
    progress.setTotalUnitCount(50);
    QCOMPARE(heard, QList<Key>{ Key::FractionCompleted });
    heard.clear();
    progress.setCompletedUnitCount(1);
    QCOMPARE(heard, (QList<Key>{ Key::FractionCompleted, Key::CompletedUnitCount }));
}

void TestProgress::observers_areRemovedByKeyAndContext()
{
    using Key = Progress::Key;
    Progress progress(100);
    int heard = 0;
    const int otherContext = 0;
    progress.addObserver(Key::CompletedUnitCount, this, [&](Key) { ++heard; });
    progress.addObserver(Key::CompletedUnitCount, &otherContext, [&](Key) { heard += 10; });
    progress.removeObserver(Key::FractionCompleted, this);
    progress.setCompletedUnitCount(1);
    QCOMPARE(heard, 11);
    // An observer may remove itself while it is told.
    progress.addObserver(Key::CompletedUnitCount, &progress,
        [&](Key) { progress.removeObserver(Key::CompletedUnitCount, &progress); });
    progress.removeObserver(Key::CompletedUnitCount, this);
    progress.setCompletedUnitCount(2);
    QCOMPARE(heard, 21);
    QCOMPARE(progress.observerCount(), 1U);
}

void TestProgress::cancellationHandler_runsOnceWhenever_data()
{
    QTest::addColumn<bool>("setFirst");
    QTest::newRow("set, then cancelled") << true;
    QTest::newRow("cancelled, then set") << false;
}

void TestProgress::cancellationHandler_runsOnceWhenever()
{
    QFETCH(bool, setFirst);
    Progress progress(-1);
    int runs = 0;
    if (!setFirst)
        progress.cancel();
    progress.setCancellationHandler([&] {
        ++runs;
        QVERIFY(progress.isCancelled());
    });
    QCOMPARE(runs, setFirst ? 0 : 1);
    progress.cancel();
    progress.cancel();
    QCOMPARE(runs, 1);
}

void TestProgress::endHandler_runsAlsoWhenSetLate()
{
    Progress progress(-1);
    QByteArrayList outputs;
    progress.setEndHandler([&] { outputs += progress.toolOutput(); });
    QVERIFY(!progress.isEnded());
    progress.end("all of it");
    progress.setEndHandler([&] { outputs += "late"; });
    QCOMPARE(outputs, (QByteArrayList{ "all of it", "late" }));
}

QTEST_GUILESS_MAIN(TestProgress)
#include "tst_progress.moc"
