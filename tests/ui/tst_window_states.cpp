// SPDX-License-Identifier: MIT
#include "planning/VideoConstraints.h"
#include "tests/ui/WindowTest.h"
#include "ui/widgets/DropBox.h"
#include "ui/widgets/ImageView.h"
#include "ui/widgets/TextField.h"

#include <QAccessible>

using namespace Qt::StringLiterals;

class tst_window_states : public WindowTest {
    Q_OBJECT

private:
    /// Names of what is not hidden below the drop area; disabled ones in brackets.
    QString shown() const
    {
        QStringList names;
        for (const QWidget *part : view("dropAcceptor")->findChildren<QWidget *>()) {
            const QString name = part->objectName();
            if (!part->isHidden() && !name.isEmpty())
                names << (part->isEnabled() ? name : u'[' + name + u']');
        }
        names.sort();
        return names.join(u' ');
    }

private Q_SLOTS:
    void state_setsEveryOutlet_data()
    {
        addRows<WindowUIState, bool, Utf8>({ "state", "takesFiles", "shown" },
            { { "initial", WindowUIState::InitialState, true,
                  "[convertToButton] againLabel anotherFormatLabel dragDropImageView "
                  "dragFileHereLabel logLabel openFromFolderLabel refusalLabel stage" },
                { "waiting", WindowUIState::WaitingForCover, false,
                    "[convertToButton] examiningLabel spinner stage stopExaminingButton" },
                { "cover", WindowUIState::CoverIsSet, true,
                    "blackBackground convertToButton copyCommandLabel factsLabel leftOutLabel "
                    "movieCoverImageView movieDurationLabel movieNameLabel stage" },
                { "converting", WindowUIState::Converting, false,
                    "blackBackground cancelProgressButton cancelProgressImageView "
                    "convertingStatusLabel movieCoverImageView movieNameLabel progressBar "
                    "secondTryLabel stage workLabel" },
                { "done", WindowUIState::ConversionIsDone, true,
                    "blackBackground conversionCompleteStatusLabel movieCoverImageView "
                    "movieNameLabel openFolderImageView openResultButton remarksLabel resultLabel "
                    "showInFolderLabel stage startOverButton" } });
    }
    void state_setsEveryOutlet()
    {
        QFETCH(const WindowUIState, state);
        const QRect stage = view("stage")->geometry();
        auto *cover = find<ImageView>("movieCoverImageView");
        for (const char *name :
            { "againLabel", "anotherFormatLabel", "copyCommandLabel", "factsLabel", "leftOutLabel",
                "logLabel", "refusalLabel", "remarksLabel", "resultLabel", "secondTryLabel" }) {
            m_delegate->setUiState(state);
            QVERIFY2(view(name)->isHidden(), name);
            find<QLabel>(name)->setText(u"Text"_s);
        }
        for (int former = 0; former < 5; ++former) {
            m_delegate->setUiState(WindowUIState(former));
            cover->setImage(QImage(8, 8, QImage::Format_RGB32));
            m_delegate->setUiState(state);
            QTEST(shown(), "shown");
            QTEST(allowDragDrop(view("dropAcceptor")), "takesFiles");
            QCOMPARE(cover->image().isNull(), state < WindowUIState::CoverIsSet);
        }
        QCoreApplication::processEvents();
        QCOMPARE(view("stage")->geometry(), stage);
        for (const QWidget *part : view("dropAcceptor")->findChildren<QWidget *>()) {
            const bool fits = part->isHidden() || part->objectName() == "movieNameLabel"_L1
                || part->size().expandedTo(part->minimumSizeHint()) == part->size();
            QVERIFY2(fits, qPrintable(part->objectName()));
        }
    }

    void menu_offersEveryEntryOnce()
    {
        const auto title = [&](const char *name) { return find<QAction>(name)->text(); };
        QStringList found;
        for (const QAction *item : find<QMenu>("formatMenu")->actions()) {
            const auto entry = videoConstraints(item->text(), title("audioMenuItem"),
                title("mp4LowQualityMenuItem"), title("mp4MeduimQualityMenuItem"));
            if (entry)
                found << entry->destDevice;
        }
        QStringList names = entryNames();
        names.sort();
        found.sort();
        QCOMPARE(found, names);
    }

    void assistant_learnsEveryControl()
    {
        for (QWidget *part : m_delegate->window()->findChildren<QWidget *>()) {
            const auto *control = QAccessible::queryAccessibleInterface(part);
            // Links that have no text now are hidden.
            const auto *field = qobject_cast<TextField *>(part);
            QVERIFY2(part->focusPolicy() == Qt::NoFocus || part->isWindow()
                    || (field && field->text().isEmpty())
                    || !control->text(QAccessible::Name).isEmpty(),
                part->metaObject()->className());
        }
        auto *link = QAccessible::queryAccessibleInterface(view("openFromFolderLabel"));
        QVERIFY(link->actionInterface()->actionNames().contains(u"Press"_s));
    }
};

QTEST_MAIN(tst_window_states)
#include "tst_window_states.moc"
