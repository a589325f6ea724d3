#include "ZRSearch.h"

#include <QtCore/QTimer>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTreeWidget>

ZRSearch::ZRSearch(QLineEdit *editor, QTreeWidget *popup, QObject *parent)
    : QObject(parent)
    , m_editor(editor)
    , m_popup(popup)
    , m_timer(new QTimer(this))
{
}

ZRSearch::~ZRSearch() = default;

void ZRSearch::doneCompletion()
{
    m_timer->stop();
    if (!m_popup)
        return;
    m_popup->hide();
    const QTreeWidgetItem *const item = m_popup->currentItem();
    if (item && m_editor)
        m_editor->setText(item->text(0));
}

void ZRSearch::preventSuggest()
{
    m_timer->stop();
}

void ZRSearch::autoSuggest() {}

void ZRSearch::slotRspCodeSearchs() {}
