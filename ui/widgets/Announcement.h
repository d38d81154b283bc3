// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

/// Says what happens to people who use a screen reader, and what the views of this folder are.
/// Made before those; shows nothing.
class Announcement : public QWidget {
    Q_OBJECT
public:
    explicit Announcement(QWidget *window);

    void say(QWidget *outlet);
};
