// SPDX-License-Identifier: MIT
#include "engine/Async.h"
#include "support/MainQueue.h"

#include <QTest>
#include <QThread>

#include <latch>

using namespace Qt::StringLiterals;

class TestAsync : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void background_jobsOverlapAndComeBack()
    {
        // Each waits for the other, so one after the other they would never end.
        auto both = std::make_shared<std::latch>(2);
        int ran = 0;
        const auto run = [&ran] { ran += MainQueue::isMainThread() ? 1 : 1000; };
        for (int i = 0; i < 2; ++i) {
            Async::background([both, run] {
                both->arrive_and_wait();
                Async::async(run);
            });
        }
        Async::async(run);
        Async::delay(0, run);
        QCOMPARE(ran, 0);
        QTRY_COMPARE(ran, 4);
        QCOMPARE(Async::backgroundSerialQueue()->label(), u"ext.serial.backgroundQueue"_s);
    }

    void queue_runsItsBlocksInOrder()
    {
        auto queue = Async::backgroundSerialQueue();
        std::vector<int> order;
        for (int i = 0; i < 100; ++i) {
            Async::async(queue, [&order, i] { order.push_back(i); });
        }
        // The queue's last block runs although nobody holds the queue any more.
        queue.reset();
        SerialQueue::waitForAll();
        QCOMPARE(order.size(), 100U);
        QVERIFY(std::ranges::is_sorted(order));
    }
};

QTEST_GUILESS_MAIN(TestAsync)
#include "tst_async.moc"
