// SPDX-License-Identifier: MIT
#include "tests/fixtures/Rows.h"
#include "ui/widgets/Color.h"
#include "ui/widgets/ConvertPopupButton.h"
#include "ui/widgets/DropBox.h"
#include "ui/widgets/ImageView.h"
#include "ui/widgets/ProgressBar.h"
#include "ui/widgets/SpinningView.h"
#include "ui/widgets/TextField.h"
#include "ui/window/ProposedName.h"
#include "ui/window/TimeLeft.h"

#include <QDropEvent>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class tst_widgets : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cell_keepsItsTitle()
    {
        ConvertPopupButtonCell cell(u"MP4"_s, false);
        QCOMPARE(cell.title(), u"Convert"_s);
        cell.setTitle(u"MP4"_s);
        QCOMPARE(cell.title(), u"Convert"_s);
        QCOMPARE(cell.overridenTitle(), u"Convert"_s);
    }

    void cell_placesTheTitleAboveTheMiddle()
    {
        ConvertPopupButtonCell cell({}, true);
        QFont system = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
        system.setPointSizeF(13);
        for (const bool ownFont : { false, true }) {
            QFont font = system;
            if (ownFont) {
                font.setPointSizeF(20);
                cell.setFont(font);
            }
            const double height
                = QFontMetricsF(font).size(Qt::TextSingleLine, u"Convert"_s).height();
            const QRectF room(3, 7, 100, height + 10);
            QCOMPARE(cell.titleRectForBounds(room), QRectF(3, 10, 100, height));
            for (const QRectF &tight : { QRectF(3, 7, 100, height), QRectF(3, 7, 100, height - 4) })
                QCOMPARE(cell.titleRectForBounds(tight), tight);
        }
    }

    void dropBox_obeysItsFlag()
    {
        DropBox box;
        box.registerForDraggedTypes({ u"text/uri-list"_s });
        QSignalSpy dropped(&box, &DropBox::performDragOperation);
        QMimeData files;
        files.setUrls({ QUrl(u"file:///a.mov"_s) });
        const auto enters = [&](const QMimeData &data) {
            QDragEnterEvent event({}, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
            QApplication::sendEvent(&box, &event);
            return event.isAccepted() && event.dropAction() == Qt::CopyAction;
        };
        const auto drops = [&] {
            QDropEvent event({}, Qt::CopyAction, &files, Qt::LeftButton, {});
            QApplication::sendEvent(&box, &event);
            return event.isAccepted();
        };

        QVERIFY(!allowDragDrop(&box));
        QVERIFY(!enters(files));
        QVERIFY(!drops());
        box.setProperty("drag'n'drop", u"true"_s);
        QVERIFY(!allowDragDrop(&box));
        setAllowDragDrop(&box, true);
        QMimeData text;
        text.setText(u"file:///a.mov"_s);
        QVERIFY(!enters(text));
        QVERIFY(enters(files));
        setAllowDragDrop(&box, false);
        QDragMoveEvent hover({}, Qt::CopyAction, &files, Qt::LeftButton, {});
        QApplication::sendEvent(&box, &hover);
        QVERIFY(!hover.isAccepted());
        QCOMPARE(dropped.count(), 0);
        setAllowDragDrop(&box, true);
        QVERIFY(drops());
        QCOMPARE(dropped.count(), 1);
    }

    void views_workAsButtons()
    {
        TextField field;
        ImageView image;
        QSignalSpy fieldClicked(&field, &TextField::clicked);
        QSignalSpy imageClicked(&image, &ImageView::clicked);
        for (QWidget *view : std::initializer_list<QWidget *>{ &field, &image }) {
            QTest::mousePress(view, Qt::LeftButton);
            QTest::mousePress(view, Qt::RightButton);
            QTest::keyClick(view, Qt::Key_Return);
            QTest::keyClick(view, Qt::Key_Space);
            QTest::keyClick(view, Qt::Key_A);
        }
        QCOMPARE(fieldClicked.count(), 3);
        QCOMPARE(imageClicked.count(), 3);
    }

    void bar_keepsItsValueWhileBusy()
    {
        ProgressBar bar;
        bar.setDoubleValue(0.25);
        QCOMPARE(bar.value() * 4, bar.maximum());
        bar.setBusy(true);
        QVERIFY(bar.isBusy());
        bar.setDoubleValue(0.5);
        bar.setBusy(false);
        QCOMPARE(bar.value() * 2, bar.maximum());
        bar.setDoubleValue(-1);
        QCOMPARE(bar.value(), 0);
    }

    void timeLeft_speaksWhenSteady_data()
    {
        using Speeds = QList<double>;
        // Each speed holds for half a second; -1 stands for no estimate.
        addRows<Speeds, int>({ "speeds", "seconds" },
            { { "too early", Speeds(5, 0.01), -1 }, { "steady", Speeds(20, 0.01), 40 },
                { "nothing moves", Speeds(20, 0.0), -1 },
                { "suddenly slower", Speeds(10, 0.02) + Speeds(10, 0.005), -1 },
                { "slower for long", Speeds(10, 0.02) + Speeds(24, 0.005), 70 },
                { "done", Speeds(20, 0.05), -1 }, { "days", Speeds(20, 0.000001), -1 } });
    }
    void timeLeft_speaksWhenSteady()
    {
        QFETCH(const QList<double>, speeds);
        QFETCH(const int, seconds);
        TimeLeft timeLeft;
        double fraction = 0;
        auto elapsed = 0ms;
        for (const double speed : speeds) {
            timeLeft.add(elapsed += 500ms, std::min(1.0, fraction += speed));
        }
        const auto estimate = timeLeft.estimate();
        QCOMPARE(estimate ? int(estimate->count()) : -1, seconds);
    }

    void proposedName_isNeverTheSource_data()
    {
        addRows<Utf8, Utf8, Utf8>({ "source", "ext", "name" },
            { { "other format", "clip.mov", "mp4", "clip" },
                { "the source", "video.mp4", "mp4", "video 3" },
                { "another video's name", "clip.mov", "avi", "clip" },
                { "long", "123456789012345678901234567890.mp4", "mp4",
                    "123456789012345678901234…" },
                { "dots", "a.b.c.mov", "mkv", "a.b.c" } });
    }
    void proposedName_isNeverTheSource()
    {
        QTemporaryDir folder;
        for (const auto &name : { u"video.mp4"_s, u"video 2.mp4"_s, u"clip.mov"_s, u"clip.avi"_s })
            QVERIFY(QFile(folder.filePath(name)).open(QIODevice::WriteOnly));
        QFETCH(const QString, source);
        QFETCH(const QString, ext);
        QTEST(proposedName(folder.filePath(source), folder.path(), ext), "name");
    }
};

QTEST_MAIN(tst_widgets)
#include "tst_widgets.moc"
