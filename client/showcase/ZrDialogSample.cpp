#include "ZrDialogSample.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QDialog>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QPushButton>

namespace {
/// Makes a widget look as under the mouse, where the mouse never is for long.
class MouseOver : public QObject
{
public:
    explicit MouseOver(QWidget *widget)
        : QObject(widget)
        , m_widget(widget)
    {
        widget->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            m_widget->setAttribute(Qt::WA_UnderMouse);
            // A button also remembers where it saw the mouse last.
            QMouseEvent move(QEvent::MouseMove, m_widget->rect().center(), Qt::NoButton, Qt::NoButton,
                             Qt::NoModifier);
            QCoreApplication::sendEvent(m_widget, &move);
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QWidget *const m_widget; // our parent
};
} // namespace

QDialog *ZrDialogSample::embed(QDialog *dialog)
{
    dialog->setFixedSize(dialog->size());
    // After the answer is through, which hides the dialog.
    QObject::connect(dialog, &QDialog::finished, dialog, &QWidget::show, Qt::QueuedConnection);
    return dialog;
}

QDialog *ZrDialogSample::hovered(QDialog *dialog, const QString &button)
{
    new MouseOver(dialog->findChild<QPushButton *>(button));
    return embed(dialog);
}

QDialog *ZrDialogSample::pressed(QDialog *dialog, const QString &button)
{
    dialog->findChild<QPushButton *>(button)->setDown(true);
    return embed(dialog);
}

QDialog *ZrDialogSample::disabled(QDialog *dialog)
{
    dialog->setEnabled(false);
    return embed(dialog);
}

QDialog *ZrDialogSample::focusPast(QDialog *dialog, const QString &part)
{
    dialog->findChild<QWidget *>(part)->setFocusPolicy(Qt::NoFocus);
    return embed(dialog);
}

QWidget *ZrDialogSample::row(const QList<QPushButton *> &buttons)
{
    auto *const sample = new QWidget;
    auto *const layout = new QHBoxLayout(sample);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QPushButton *const button : buttons)
        layout->addWidget(button);
    return sample;
}
