#include "ZrGroupedHeadHeight.h"

#include "FreezeTableView.h"

#include <QtCore/QTimerEvent>
#include <QtWidgets/QHeaderView>

namespace {
constexpr int retryMs = 10;
}

ZrGroupedHeadHeight::ZrGroupedHeadHeight(FreezeTableView *table, int *timerId, bool *isDoubled,
                                         QObject *parent)
    : QObject(parent)
    , m_table(table)
    , m_timerId(timerId)
    , m_isDoubled(isDoubled)
{
}

void ZrGroupedHeadHeight::start()
{
    if (*m_timerId == -1 && !*m_isDoubled)
        *m_timerId = startTimer(retryMs, Qt::CoarseTimer);
}

void ZrGroupedHeadHeight::release()
{
    m_table->setMinimumHeadHeight(0);
}

void ZrGroupedHeadHeight::takeAgain()
{
    // The sheet may have changed the font: the head's own wish is one band's height.
    m_table->horizontalHeader()->resize(m_table->horizontalHeader()->width(),
                                        m_table->horizontalHeader()->sizeHint().height());
    doubleHeight();
}

void ZrGroupedHeadHeight::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != *m_timerId) {
        QObject::timerEvent(event);
        return;
    }
    if (m_table->horizontalHeader()->height() <= 0)
        return;
    killTimer(*m_timerId);
    *m_timerId = -1;
    *m_isDoubled = true;
    doubleHeight();
}

void ZrGroupedHeadHeight::doubleHeight()
{
    m_table->setMinimumHeadHeight(2 * m_table->horizontalHeader()->height());
}
