// SPDX-License-Identifier: MIT
#include "planning/VideoConstraints.h"
#include "tests/ui/WindowTest.h"
#include "ui/widgets/DropBox.h"
#include "ui/widgets/ImageView.h"
#include "ui/widgets/SpinningView.h"

#include <QAccessible>
#include <QMenu>

using namespace Qt::StringLiterals;

class tst_window_states : public WindowTest {
    Q_OBJECT

private:
    /// Names of what is not hidden below the drop area; disabled ones in brackets.
    QString shown() const
    {
        QStringList names;
        for (const QWidget *view : m_user->view("dropAcceptor")->findChildren<QWidget *>()) {
            const QString name = view->objectName();
            if (!view->isHidden() && !name.isEmpty())
                names << (view->isEnabled() ? name : u'[' + name + u']');
        }
        names.sort();
        return names.join(u' ');
    }

private Q_SLOTS:
    void state_setsEveryOutlet_data()
    {
        addRows<WindowUIState, bool, Utf8>({ "state", "takesFiles", "shown" },
            { { "initial", WindowUIState::InitialState, true,
                  "[convertToButton] dragDropImageView dragFileHereLabel openFromFolderLabel "
                  "refusalLabel spinner stage timeLeftLabel" },
                { "waiting", WindowUIState::WaitingForCover, false,
                    "[convertToButton] spinner stage timeLeftLabel" },
                { "cover", WindowUIState::CoverIsSet, true,
                    "blackBackground convertToButton movieCoverImageView movieDurationLabel "
                    "movieNameLabel spinner stage timeLeftLabel" },
                { "converting", WindowUIState::Converting, false,
                    "blackBackground cancelProgressButton cancelProgressImageView "
                    "convertingStatusLabel movieCoverImageView movieNameLabel progressBar "
                    "spinner stage timeLeftLabel" },
                { "done", WindowUIState::ConversionIsDone, true,
                    "blackBackground conversionCompleteStatusLabel movieCoverImageView "
                    "movieNameLabel openFolderImageView spinner stage startOverButton "
                    "timeLeftLabel" } });
    }
    void state_setsEveryOutlet()
    {
        QFETCH(const WindowUIState, state);
        auto *cover = m_user->find<ImageView>("movieCoverImageView");
        for (int former = 0; former < 5; ++former) {
            m_delegate->setUiState(WindowUIState(former));
            cover->setImage(QImage(8, 8, QImage::Format_RGB32));
            m_delegate->setUiState(state);
            QTEST(shown(), "shown");
            QTEST(allowDragDrop(m_user->view("dropAcceptor")), "takesFiles");
            QCOMPARE(cover->image().isNull(), state < WindowUIState::CoverIsSet);
            QCOMPARE(m_user->find<SpinningView>("spinner")->spinning(),
                state == WindowUIState::WaitingForCover);
        }
    }

    void menu_offersEveryEntryOnce()
    {
        const auto title = [&](const char *name) { return m_user->find<QAction>(name)->text(); };
        QStringList found;
        int headings = 0;
        for (const QAction *item : m_user->find<QMenu>("formatMenu")->actions()) {
            const auto entry = videoConstraints(item->text(), title("audioMenuItem"),
                title("mp4LowQualityMenuItem"), title("mp4MeduimQualityMenuItem"));
            if (entry)
                found << entry->destDevice;
            else if (!item->isSeparator())
                ++headings;
        }
        QStringList names = entryNames();
        names.sort();
        found.sort();
        QCOMPARE(found, names);
        QCOMPARE(headings, 3);
    }

    void window_keepsItsLayoutInEveryState()
    {
        const QRect stage = m_user->view("stage")->geometry();
        for (int state = 0; state < 5; ++state) {
            m_delegate->setUiState(WindowUIState(state));
            QCoreApplication::processEvents();
            QCOMPARE(m_user->view("stage")->geometry(), stage);
            for (QWidget *view : m_user->view("dropAcceptor")->findChildren<QWidget *>()) {
                const QSize least = view->minimumSizeHint();
                const bool fits = view->isHidden() || view->objectName() == "movieNameLabel"_L1
                    || (view->width() >= least.width() && view->height() >= least.height());
                QVERIFY2(fits, qPrintable(view->objectName()));
            }
        }
    }

    void assistant_learnsEveryControl()
    {
        const auto role = [this](const char *name) {
            const auto *control = QAccessible::queryAccessibleInterface(m_user->view(name));
            const bool hasName = !control->text(QAccessible::Name).isEmpty();
            return hasName ? control->role() : QAccessible::NoRole;
        };
        for (const char *name : { "openFromFolderLabel", "openFolderImageView",
                 "cancelProgressButton", "startOverButton" })
            QVERIFY2(role(name) == QAccessible::PushButton, name);
        QCOMPARE(role("convertToButton"), QAccessible::ButtonMenu);
        QCOMPARE(role("progressBar"), QAccessible::ProgressBar);
        QCOMPARE(role("movieCoverImageView"), QAccessible::Graphic);
        QCOMPARE(role("conversionCompleteStatusLabel"), QAccessible::StaticText);
        for (QWidget *view : m_delegate->window()->findChildren<QWidget *>()) {
            const auto *control = QAccessible::queryAccessibleInterface(view);
            QVERIFY2(view->focusPolicy() == Qt::NoFocus || view->isWindow()
                    || !control->text(QAccessible::Name).isEmpty(),
                view->metaObject()->className());
        }
        auto *link = QAccessible::queryAccessibleInterface(m_user->view("openFromFolderLabel"));
        QVERIFY(link->actionInterface()->actionNames().contains(
            QAccessibleActionInterface::pressAction()));
    }
};

QTEST_MAIN(tst_window_states)
#include "tst_window_states.moc"
