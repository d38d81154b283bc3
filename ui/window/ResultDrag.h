// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPoint>

class ImageView;
class QWidget;

/// Lets the user drag the result out of its picture, into a file manager or a mail.
class ResultDrag : public QObject {
    Q_OBJECT

public:
    /// What is dragged must not be dropped on the window itself.
    ResultDrag(ImageView *picture, QWidget *dropTarget);

    /// Nothing is dragged while this is empty.
    void setPath(const QString &path);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void drag();

    ImageView *m_picture;
    QWidget *m_dropTarget;
    QString m_path;
    QPoint m_pressedAt;
};
