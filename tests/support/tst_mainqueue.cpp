// SPDX-License-Identifier: MIT
#include "support/Console.h"
#include "support/MainQueue.h"

#include <QElapsedTimer>
#include <QRegularExpression>
#include <QTest>

#include <memory>
#include <numeric>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class TestMainQueue : public QObject {
    Q_OBJECT

public:
    static inline std::weak_ptr<int> heldByEarlierBlock;
    static inline bool earlierBlockRan = false;

private Q_SLOTS:
    void blocks_runLaterInOrder()
    {
        QStringList order;
        MainQueue::post([&] {
            order += u"first"_s;
            MainQueue::post([&] { order += u"third"_s; });
            order += u"still first"_s;
        });
        MainQueue::post([&] { order += u"second"_s; });
        order += u"before"_s;
        QTRY_COMPARE(order.size(), 5);
        QCOMPARE(order.join(u", "_s), u"before, first, still first, second, third"_s);
    }

    void otherThreads_keepTheirOrder()
    {
        std::vector<int> expected(1000);
        std::iota(expected.begin(), expected.end(), 0);
        std::vector<int> left;
        std::vector<int> right;
        const auto poster = [&](std::vector<int> &numbers) {
            QVERIFY(!MainQueue::isMainThread());
            for (const int number : expected)
                MainQueue::post([&numbers, number] {
                    numbers.push_back(MainQueue::isMainThread() ? number : -1);
                });
        };
        std::thread leftThread(poster, std::ref(left));
        std::thread rightThread(poster, std::ref(right));
        leftThread.join();
        rightThread.join();
        QTRY_COMPARE(left.size() + right.size(), std::size_t{ 2000 });
        QCOMPARE(left, expected);
        QCOMPARE(right, expected);
    }

    void delay_isKept()
    {
        QElapsedTimer timer;
        timer.start();
        QStringList order;
        qint64 elapsed = 0;
        std::thread([&] {
            MainQueue::postAfter(120ms, [&] {
                order += u"late"_s;
                elapsed = timer.elapsed();
            });
            MainQueue::postAfter(-1s, [&] { order += u"overdue"_s; });
            MainQueue::post([&] { order += u"now"_s; });
        }).join();
        QCOMPARE(order, QStringList());
        QTRY_COMPARE(order.size(), 3);
        QCOMPARE(order.join(u", "_s), u"now, overdue, late"_s);
        QVERIFY2(elapsed >= 120, qPrintable(QString::number(elapsed)));

        // Longer than the library's timers can wait.
        QTest::failOnWarning(QRegularExpression(u"[Tt]imer"_s));
        bool ran = false;
        MainQueue::postAfter(24h * 40, [&ran] { ran = true; });
        QTest::qWait(50);
        QVERIFY(!ran);
    }

    void blockOfAnEarlierApplication_isDropped()
    {
        MainQueue::post([] {});
        QCoreApplication::processEvents();
        QVERIFY(!earlierBlockRan);
        QVERIFY(heldByEarlierBlock.expired());
    }

    void lines_doNotMix()
    {
        QStringList lines;
        Console::setSink([&](const QString &line) { lines.append(line); });
        const auto printer = [](QChar letter) {
            for (int i = 0; i < 200; ++i)
                Console::print(QString(50, letter));
        };
        std::thread other(printer, u'a');
        printer(u'b');
        other.join();
        Console::setSink([](const QString &) {});
        QCOMPARE(lines.count(QString(50, u'a')), 200);
        QCOMPARE(lines.count(QString(50, u'b')), 200);
        QCOMPARE(lines.size(), 400);
    }
};

int main(int argc, char *argv[])
{
    {
        const QCoreApplication earlier(argc, argv);
        const auto held = std::make_shared<int>();
        TestMainQueue::heldByEarlierBlock = held;
        MainQueue::post([held] { TestMainQueue::earlierBlockRan = true; });
    }
    MainQueue::post([] { TestMainQueue::earlierBlockRan = true; });
    const QCoreApplication app(argc, argv);
    TestMainQueue test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_mainqueue.moc"
