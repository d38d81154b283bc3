// SPDX-License-Identifier: MIT
#include "planning/VideoConstraints.h"
#include "tests/ui/User.h"
#include "ui/widgets/DropBox.h"
#include "ui/widgets/ImageView.h"
#include "ui/widgets/SpinningView.h"
#include "ui/window/AppDelegate.h"

#include <QAccessible>
#include <QMenu>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// S shown, H hidden, c image cleared, D disabled, E enabled, * spins, y drops allowed, n not; one
// column a state.
constexpr struct {
    const char *outlet;
    const char *looks[5];
} table[] = {
    { "movieCoverImageView", { "Hc", "Hc", "S", "S", "S" } },
    { "blackBackground", { "H", "H", "S", "S", "S" } },
    { "dragDropImageView", { "S", "H", "H", "H", "H" } },
    { "spinner", { "S", "S*", "S", "S", "S" } },
    { "dragFileHereLabel", { "S", "H", "H", "H", "H" } },
    { "openFromFolderLabel", { "S", "H", "H", "H", "H" } },
    { "movieNameLabel", { "H", "H", "S", "S", "S" } },
    { "movieDurationLabel", { "H", "H", "S", "H", "H" } },
    { "convertToButton", { "SD", "SD", "S", "H", "H" } },
    { "progressBar", { "H", "H", "H", "S", "H" } },
    { "cancelProgressImageView", { "H", "H", "H", "S", "H" } },
    { "cancelProgressButton", { "H", "H", "H", "S", "H" } },
    { "convertingStatusLabel", { "H", "H", "H", "S", "H" } },
    { "conversionCompleteStatusLabel", { "H", "H", "H", "H", "S" } },
    { "startOverButton", { "H", "H", "H", "H", "S" } },
    { "openFolderImageView", { "H", "H", "H", "H", "S" } },
    { "dropAcceptor", { "Sy", "S", "Sy", "S", "Sy" } },
};

QString look(const QWidget *view)
{
    QString look = view->isHidden() ? u"H"_s : u"S"_s;
    if (const auto *image = qobject_cast<const ImageView *>(view); image && image->image().isNull())
        look += u'c';
    if (const auto *spinner = qobject_cast<const SpinningView *>(view);
        spinner && spinner->spinning())
        look += u'*';
    if (!view->isEnabled())
        look += u'D';
    if (allowDragDrop(view))
        look += u'y';
    return look;
}

}

class tst_window_states : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void state_setsEveryOutlet()
    {
        AppDelegate delegate;
        const User user(*delegate.window());
        delegate.window()->show();
        QImage picture(8, 8, QImage::Format_RGB32);
        for (int from = 0; from < 5; ++from) {
            for (int to = 0; to < 5; ++to) {
                delegate.setUiState(WindowUIState(from));
                user.find<ImageView>("movieCoverImageView")->setImage(picture);
                delegate.setUiState(WindowUIState(to));
                QStringList looks;
                QStringList expected;
                for (const auto &row : table) {
                    const bool isDrawing = QByteArrayView(row.outlet).endsWith("ImageView")
                        && QByteArrayView(row.outlet) != "movieCoverImageView";
                    looks << QLatin1String(row.outlet) + u' ' + look(user.view(row.outlet));
                    expected << QLatin1String(row.outlet) + u' ' + QLatin1String(row.looks[to])
                            + (isDrawing ? u"c"_s : QString());
                }
                QCOMPARE(looks, expected);
            }
        }
    }

    void menu_offersEveryEntryOnce()
    {
        AppDelegate delegate;
        const User user(*delegate.window());
        const auto title = [&](const char *name) { return user.find<QAction>(name)->text(); };
        QMap<QString, QString> found;
        int headings = 0;
        for (const QAction *item : user.find<QMenu>("formatMenu")->actions()) {
            const auto entry = videoConstraints(item->text(), title("audioMenuItem"),
                title("mp4LowQualityMenuItem"), title("mp4MeduimQualityMenuItem"));
            if (entry)
                found[entry->destDevice] = item->text();
            else if (!item->isSeparator())
                ++headings;
        }
        QStringList names = entryNames();
        names.sort();
        QCOMPARE(found.keys(), names);
        QCOMPARE(headings, 3);
    }

    void window_keepsItsLayoutInEveryState()
    {
        AppDelegate delegate;
        const User user(*delegate.window());
        delegate.window()->show();
        QVERIFY(QTest::qWaitForWindowExposed(delegate.window()));
        const QRect stage = user.view("stage")->geometry();
        for (int state = 0; state < 5; ++state) {
            delegate.setUiState(WindowUIState(state));
            QCoreApplication::processEvents();
            QCOMPARE(user.view("stage")->geometry(), stage);
            for (QWidget *view : user.view("dropAcceptor")->findChildren<QWidget *>()) {
                const bool fits = view->isHidden() || view->objectName() == "movieNameLabel"_L1
                    || (view->width() >= view->minimumSizeHint().width()
                        && view->height() >= view->minimumSizeHint().height());
                QVERIFY2(fits, qPrintable(view->objectName()));
            }
        }
    }

    void assistant_learnsEveryControl()
    {
        AppDelegate delegate;
        const User user(*delegate.window());
        delegate.window()->show();
        using Role = QAccessible::Role;
        const QList<std::pair<const char *, Role>> controls{ { "openFromFolderLabel",
                                                                 QAccessible::PushButton },
            { "openFolderImageView", QAccessible::PushButton },
            { "convertToButton", QAccessible::ButtonMenu },
            { "cancelProgressButton", QAccessible::PushButton },
            { "startOverButton", QAccessible::PushButton },
            { "progressBar", QAccessible::ProgressBar },
            { "movieCoverImageView", QAccessible::Graphic },
            { "conversionCompleteStatusLabel", QAccessible::StaticText } };
        for (const auto &[name, role] : controls) {
            QAccessibleInterface *control = QAccessible::queryAccessibleInterface(user.view(name));
            QVERIFY2(!control->text(QAccessible::Name).isEmpty(), name);
            QVERIFY2(control->role() == role, name);
        }
        for (QWidget *view : delegate.window()->findChildren<QWidget *>()) {
            const QAccessibleInterface *control = QAccessible::queryAccessibleInterface(view);
            QVERIFY2(view->focusPolicy() == Qt::NoFocus || view->isWindow()
                    || !control->text(QAccessible::Name).isEmpty(),
                view->metaObject()->className());
        }
        QAccessibleInterface *link
            = QAccessible::queryAccessibleInterface(user.view("openFromFolderLabel"));
        QVERIFY(link->actionInterface()->actionNames().contains(
            QAccessibleActionInterface::pressAction()));
    }
};

QTEST_MAIN(tst_window_states)
#include "tst_window_states.moc"
