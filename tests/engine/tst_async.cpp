// SPDX-License-Identifier: MIT
#include "engine/Async.h"
#include "engine/SerialQueue.h"
#include "support/MainQueue.h"
#include "tests/fixtures/Processes.h"

#include <QTest>
#include <QThread>

#include <latch>
#include <limits>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

class TestAsync : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void background_jobsOverlapOnQueuesOfTheirOwn();
    void queue_runsItsBlocksInOrderOnOneThread();
    void async_runsOnTheMainThreadAndNeverInline();
    void delay_refusesWhatDoesNotFit_data();
    void delay_refusesWhatDoesNotFit();
    void queues_leaveNoThreadBehind();
};

void TestAsync::background_jobsOverlapOnQueuesOfTheirOwn()
{
    // Each waits for the other, so one after the other they would never end.
    auto both = std::make_shared<std::latch>(2);
    std::atomic<int> done = 0;
    for (int i = 0; i < 2; ++i) {
        Async::background([both, &done] {
            both->arrive_and_wait();
            ++done;
        });
    }
    QTRY_COMPARE(done.load(), 2);
    QCOMPARE(Async::backgroundSerialQueue()->label(), u"ext.serial.backgroundQueue"_s);
    QVERIFY(Async::backgroundSerialQueue() != Async::backgroundSerialQueue());
}

void TestAsync::queue_runsItsBlocksInOrderOnOneThread()
{
    auto queue = Async::backgroundSerialQueue();
    std::vector<int> order;
    std::vector<Qt::HANDLE> threads;
    for (int i = 0; i < 100; ++i) {
        Async::async(queue, [&, i] {
            order.push_back(i);
            threads.push_back(QThread::currentThreadId());
        });
    }
    // The queue's last block runs although nobody holds the queue any more.
    queue.reset();
    SerialQueue::waitForAll();
    QCOMPARE(order.size(), 100U);
    QVERIFY(std::ranges::is_sorted(order));
    QVERIFY(std::ranges::all_of(threads, [&](auto id) { return id == threads.front(); }));
    QVERIFY(threads.front() != QThread::currentThreadId());
}

void TestAsync::async_runsOnTheMainThreadAndNeverInline()
{
    int ran = 0;
    const auto run = [&] { ran += MainQueue::isMainThread() ? 1 : 1000; };
    Async::async(run);
    Async::delay(0, run);
    Async::background([&] { Async::async(run); });
    QCOMPARE(ran, 0);
    QTRY_COMPARE(ran, 3);
}

void TestAsync::delay_refusesWhatDoesNotFit_data()
{
    QTest::addColumn<double>("seconds");
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity();
    QTest::newRow("beyond 64 bits") << 1e10;
    QTest::newRow("below 64 bits") << -1e10;
}

void TestAsync::delay_refusesWhatDoesNotFit()
{
    QFETCH(double, seconds);
    const pid_t child = ::fork();
    if (child == 0) {
        ::close(STDERR_FILENO);
        ::signal(SIGILL, SIG_DFL);
        Async::delay(seconds, [] {});
        ::_exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    QVERIFY(!(WIFEXITED(status) && WEXITSTATUS(status) == 0));
}

void TestAsync::queues_leaveNoThreadBehind()
{
    SerialQueue::waitForAll();
    const qsizetype before = Processes::threads();
    for (int i = 0; i < 100; ++i)
        Async::background([] {});
    SerialQueue::waitForAll();
    QTRY_COMPARE(Processes::threads(), before);
}

QTEST_GUILESS_MAIN(TestAsync)
#include "tst_async.moc"
