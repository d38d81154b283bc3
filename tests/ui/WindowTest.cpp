// SPDX-License-Identifier: MIT
#include "tests/ui/WindowTest.h"

#include "support/Console.h"
#include "support/Defaults.h"

#include <QDropEvent>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QPointer>
#include <QPushButton>
#include <QWindow>

using namespace Qt::StringLiterals;

bool WindowTest::clickCommand(QMenu *menu, const QString &title)
{
    for (QAction *command : menu->actions()) {
        if (command->text() != title)
            continue;
        const bool enabled = command->isEnabled();
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(command).center());
        return enabled;
    }
    return false;
}

void WindowTest::choose(const QString &title) const
{
    auto *menu = find<QMenu>("formatMenu");
    QTimer::singleShot(0, menu, [menu, title] {
        // It may have to be scrolled into view.
        for (QAction *item : menu->actions()) {
            if (item->text() == title)
                menu->setActiveAction(item);
        }
        clickCommand(menu, title);
    });
    click("convertToButton");
}

bool WindowTest::drop(const QStringList &addresses) const
{
    QMimeData data;
    if (addresses.isEmpty())
        data.setText(u"only text"_s);
    else
        data.setUrls(QUrl::fromStringList(addresses));
    QWindow *window = m_delegate->window()->windowHandle();
    const QPoint place(window->width() / 2, window->height() / 2);
    // Who drags with Shift wants to move, and the source would remove what was moved.
    const auto actions = Qt::CopyAction | Qt::MoveAction;
    QDragEnterEvent enter(place, actions, &data, Qt::LeftButton, Qt::ShiftModifier);
    QApplication::sendEvent(window, &enter);
    m_user.whileDragging();
    QDragMoveEvent move(place, actions, &data, Qt::LeftButton, Qt::ShiftModifier);
    QApplication::sendEvent(window, &move);
    QDropEvent drop(place, actions, &data, Qt::LeftButton, Qt::ShiftModifier);
    QDragLeaveEvent leave;
    QApplication::sendEvent(
        window, move.isAccepted() ? static_cast<QEvent *>(&drop) : static_cast<QEvent *>(&leave));
    return move.isAccepted() && drop.isAccepted() && drop.dropAction() == Qt::CopyAction;
}

bool WindowTest::waitFor(WindowUIState state, int milliseconds) const
{
    return QTest::qWaitFor([&] { return m_delegate->uiState() == state; }, milliseconds);
}

bool WindowTest::open(const QString &name) const
{
    return drop({ url(name) }) && waitFor(WindowUIState::CoverIsSet);
}

bool WindowTest::convert(const QByteArray &script, WindowUIState until, const QString &name)
{
    m_swap.reset();
    if (!open(name))
        return false;
    m_swap = std::make_unique<ToolSwap>(u"ffmpeg"_s, ToolSwap::With::FakeTool,
        "print:Duration: 00:01:40.00, start: 0.000000\\n|output|" + script);
    if (m_user.names.isEmpty())
        m_user.names << u"result"_s;
    choose(u"MKV"_s);
    return waitFor(until);
}

void WindowTest::look()
{
    // The test's X server has no window manager that would give the focus back.
    if (m_delegate && !QApplication::activeWindow() && !QApplication::activeModalWidget())
        m_delegate->window()->activateWindow();
    auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
    if (!dialog || !dialog->isVisible() || dialog->property("isAnswered").toBool())
        return;
    dialog->setProperty("isAnswered", true);
    // An answer may bring up the next dialog, and a timer does not fire inside its own slot.
    QMetaObject::invokeMethod(
        dialog, [this, dialog] { answer(dialog); }, Qt::QueuedConnection);
}

void WindowTest::answer(QDialog *dialog)
{
    if (auto *field = dialog->findChild<QLineEdit *>(u"fileNameEdit"_s)) {
        ++m_user.sheets;
        m_user.proposal = field->text();
        m_user.whileAnswering();
        if (m_user.names.isEmpty())
            return QTest::keyClick(dialog, Qt::Key_Escape);
        if (const QString name = m_user.names.takeFirst(); !name.isEmpty()) {
            // The list of files writes into a field that has no focus.
            dialog->activateWindow();
            field->setFocus();
            QVERIFY(QTest::qWaitFor([field] { return field->hasFocus(); }));
            field->setText(name);
        }
        const QPointer<QDialog> sheet(dialog);
        QTest::keyClick(field, Qt::Key_Return);
        // It stays when it refuses the name.
        if (sheet && sheet->isVisible())
            sheet->setProperty("isAnswered", false);
    } else if (auto *box = qobject_cast<QMessageBox *>(dialog)) {
        m_user.read << box->text();
        m_user.whileReading();
        for (QAbstractButton *button : box->buttons()) {
            if (m_user.saysYes && box->buttonRole(button) == QMessageBox::YesRole)
                return QTest::mouseClick(button, Qt::LeftButton);
        }
        QTest::keyClick(box, Qt::Key_Return);
    }
}

void WindowTest::initTestCase()
{
    Console::setSink([](const QString &) {});
    QApplication::setQuitOnLastWindowClosed(false);
    Media::video(m_sample.filePath(u"video.mov"_s), 3);
    connect(&m_timer, &QTimer::timeout, this, &WindowTest::look);
    m_timer.start(5);
}

void WindowTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    for (const QString &key : { u"LastSaveFolder"_s, u"LastOpenFolder"_s, u"LastEntry"_s })
        Defaults::remove(key);
    m_video = path(u"video.mov"_s);
    QVERIFY(QFile::copy(m_sample.filePath(u"video.mov"_s), m_video));
    m_user = {};
    m_delegate = std::make_unique<AppDelegate>();
    m_delegate->applicationDidFinishLaunching();
    m_delegate->window()->show();
    m_delegate->window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_delegate->window()));
}

void WindowTest::cleanup()
{
    m_swap.reset();
    m_delegate.reset();
    // Asked once, as an examination that was cancelled may go on to its second tool.
    QVERIFY(QTest::qWaitFor([] { return Processes::children().isEmpty(); }));
}
