#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

class QDialog;
class QPushButton;
class QWidget;

/// Dialogs as parts of a page.
class ZrDialogSample
{
public:
    /// Keeps its size, and stays when it is answered.
    static QDialog *embed(QDialog *dialog);
    /// The dialog with one of its buttons as under the mouse or pressed.
    static QDialog *hovered(QDialog *dialog, const QString &button);
    static QDialog *pressed(QDialog *dialog, const QString &button);
    static QDialog *disabled(QDialog *dialog);
    /// For a picture of its focus: the part of that name takes none, so that the next one does.
    static QDialog *focusPast(QDialog *dialog, const QString &part);
    /// Buttons side by side.
    static QWidget *row(const QList<QPushButton *> &buttons);

private:
    ZrDialogSample() = delete;
};
