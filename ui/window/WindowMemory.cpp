// SPDX-License-Identifier: MIT
#include "ui/window/WindowMemory.h"

#include "support/Defaults.h"

#include <QMenu>

using namespace Qt::StringLiterals;

namespace {

const QString placeKey = u"WindowPlace"_s;
const QString entryKey = u"LastEntry"_s;

}

WindowMemory::WindowMemory(QWidget &window, QMenu &formatMenu)
    : m_window(window)
    , m_formatMenu(formatMenu)
{
    m_window.restoreGeometry(Defaults::value(placeKey).toByteArray());
    const QString name = Defaults::value(entryKey).toString();
    for (QAction *entry : m_formatMenu.actions()) {
        if (!name.isEmpty() && entry->objectName() == name)
            m_formatMenu.setDefaultAction(entry);
    }
}

WindowMemory::~WindowMemory() { Defaults::setValue(placeKey, m_window.saveGeometry()); }

void WindowMemory::entryWasUsed(QAction *entry)
{
    m_formatMenu.setDefaultAction(entry);
    Defaults::setValue(entryKey, entry->objectName());
}
