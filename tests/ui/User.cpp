// SPDX-License-Identifier: MIT
#include "tests/ui/User.h"

#include <QApplication>
#include <QDropEvent>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QUrl>

using namespace Qt::StringLiterals;

User::User(QMainWindow &window)
    : m_window(window)
{
    m_timer.setInterval(5);
    connect(&m_timer, &QTimer::timeout, this, &User::look);
    m_timer.start();
}

void User::look()
{
    // The test's X server has no window manager that would give the focus back.
    if (!QApplication::activeWindow() && !QApplication::activeModalWidget())
        m_window.activateWindow();
    auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
    if (!dialog || !dialog->isVisible() || dialog == m_answered)
        return;
    m_answered = dialog;
    // An answer may bring up the next dialog, and a timer does not fire inside its own slot.
    const auto act = [this, dialog = QPointer(dialog)] {
        if (!dialog || dialog != QApplication::activeModalWidget())
            return;
        if (auto *box = qobject_cast<QMessageBox *>(dialog))
            answer(box);
        else if (auto *sheet = qobject_cast<QFileDialog *>(dialog))
            answer(sheet);
    };
    QMetaObject::invokeMethod(this, act, Qt::QueuedConnection);
}

void User::answer(QMessageBox *box)
{
    read << box->text();
    if (whileReading)
        whileReading();
    for (QAbstractButton *button : box->buttons()) {
        if (saysYes && button->text() == "Yes"_L1)
            return QTest::mouseClick(button, Qt::LeftButton);
    }
    QTest::keyClick(box, Qt::Key_Return);
}

void User::answer(QFileDialog *sheet)
{
    ++sheets;
    auto *field = sheet->findChild<QLineEdit *>(u"fileNameEdit"_s);
    proposal = field->text();
    if (names.isEmpty())
        return QTest::keyClick(sheet, Qt::Key_Escape);
    if (const QString name = names.takeFirst(); !name.isEmpty())
        field->setText(name);
    QTest::keyClick(field, Qt::Key_Return);
}

void User::click(const char *name) const { QTest::mouseClick(view(name), Qt::LeftButton); }

void User::choose(const QString &title) const
{
    const auto *menu = find<QMenu>("formatMenu");
    QTimer::singleShot(0, menu, [menu, title] {
        for (QAction *item : menu->actions()) {
            if (item->text() == title)
                QTest::mouseClick(const_cast<QMenu *>(menu), Qt::LeftButton, {},
                    menu->actionGeometry(item).center());
        }
    });
    click("convertToButton");
}

bool User::drop(const QStringList &addresses) const
{
    QMimeData data;
    if (addresses.isEmpty())
        data.setText(u"only text"_s);
    else
        data.setUrls(QUrl::fromStringList(addresses));
    QWidget *target = view("dropAcceptor");
    const QPoint place = target->rect().center();
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(target, &enter);
    if (!enter.isAccepted())
        return false;
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(target, &drop);
    return drop.isAccepted();
}
