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
