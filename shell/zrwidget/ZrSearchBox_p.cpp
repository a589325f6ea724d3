#include "ZrSearchBox_p.h"

#include "ZrCompleter.h"
#include "ZrSymbolText.h"

#include "zrbusinessdata/CBusinessDataBase.h"

#include <QtCore/QPointer>
#include <QtWidgets/QAbstractItemView>

namespace {
constexpr int PickDelayMs = 250;
constexpr int ListWidthPx = 300;
constexpr int ListOverlapPx = 2; // the list hides the field's lower edge
} // namespace

ZrSearchBoxPrivate::ZrSearchBoxPrivate(ZrSearchBox *box)
{
    q_ptr = box;
    parent = nullptr;
}

ZrSearchBoxPrivate::~ZrSearchBoxPrivate()
{
    // Its popup may be in the middle of an event.
    if (completer)
        completer->deleteLater();
}

void ZrSearchBoxPrivate::init(const QStringList &list)
{
    const ZrSymbolText::Parted parted = ZrSymbolText::parted(list);
    securityList = parted.securities;
    searchKeyList = parted.searchKeys;
    m_matcher.setLists(securityList, searchKeyList);
    if (!completer)
        createCompleter();
    // With their search keys: until something is typed the list is the caller's.
    completer->setSourceList(list);
}

void ZrSearchBoxPrivate::createCompleter()
{
    completer = new ZrCompleter(q());
    completer->setCompletionMode(QCompleter::PopupCompletion);
    completer->setSearchWidget(q());
    QObject::connect(completer->popup(), &QAbstractItemView::clicked, q(), &ZrSearchBox::slotCompleteText);
    QObject::connect(completer, &ZrCompleter::completerFocusOutEvent, q(),
                     &ZrSearchBox::completerFocusOutEvent);
    applySearchMode();
    completer->setCaseSensitivity(searchMode == ZrSymbolMatcher::Contains ? Qt::CaseInsensitive
                                                                          : Qt::CaseSensitive);
}

void ZrSearchBoxPrivate::applySearchMode()
{
    completer->setFilterMode(searchMode == ZrSymbolMatcher::Contains ? Qt::MatchContains
                                                                     : Qt::MatchStartsWith);
}

void ZrSearchBoxPrivate::loadSecurities()
{
    init(CBusinessDataBase::GetInstance()->GetAllSymbolByType(securityType, QString(), QString(), false,
                                                              QStringList()));
}

// --- the list ---

void ZrSearchBoxPrivate::narrow(const QString &text)
{
    if (m_isQuiet)
        return;
    // Whoever listens to the box may end it.
    const QPointer<ZrSearchBox> self(q());
    if (!symbol.isEmpty()) {
        symbol.clear();
        emit q()->signalStockCodeClear();
        if (!self)
            return;
    }
    if (text.isEmpty()) {
        hidePopup();
        listFirstRows();
        lastTextLength = 0;
        return;
    }
    completer->setSourceList(m_matcher.matches(text, searchMode, maxFilterShowSize));
    openPopup();
    const QModelIndex row = firstRow();
    if (row.isValid()) {
        completer->popup()->setCurrentIndex(row);
        pickOnlyRow(row, text);
    }
    // Of what stands in the field now: after a pick that is the whole code, and who deletes from it is not
    // given it back at once.
    if (self)
        lastTextLength = q()->text().size();
}

void ZrSearchBoxPrivate::listFirstRows()
{
    completer->setSourceList(maxFilterShowSize < 1 ? securityList : securityList.mid(0, maxFilterShowSize));
}

void ZrSearchBoxPrivate::pickOnlyRow(const QModelIndex &row, const QString &text)
{
    // Who deletes characters is about to type another code.
    if (text.size() < minMatchLength || text.size() < lastTextLength || row.model()->rowCount() != 1)
        return;
    pickAndClose(row);
}

void ZrSearchBoxPrivate::openPopup()
{
    // The popup's own height, which is none unless a skin sets one: the completer then takes the place right
    // under the field, which is this point, and turns upwards at the screen's lower edge.
    const QPoint place = q()->mapToGlobal(QPoint(0, q()->height() - ListOverlapPx));
    completer->showPopup(QRect(place, QSize(ListWidthPx, completer->popup()->minimumHeight())));
}

void ZrSearchBoxPrivate::hidePopup()
{
    completer->popup()->hide();
}

bool ZrSearchBoxPrivate::isPopupVisible() const
{
    return completer && completer->popup()->isVisible();
}

QModelIndex ZrSearchBoxPrivate::firstRow() const
{
    return completer->completionModel()->index(0, 0);
}

// --- the pick ---

void ZrSearchBoxPrivate::pick(const QModelIndex &row)
{
    symbol = ZrSymbolText::symbolOf(row.data().toString());
    const QPointer<ZrSearchBox> self(q());
    showSymbol();
    if (self)
        startPickTimer();
}

void ZrSearchBoxPrivate::pickAndClose(const QModelIndex &row)
{
    const QPointer<ZrSearchBox> self(q());
    pick(row);
    if (self)
        hidePopup();
}

void ZrSearchBoxPrivate::showSymbol()
{
    const QString code = ZrSymbolText::shortCode(symbol);
    if (q()->text() == code)
        return;
    const QPointer<ZrSearchBox> self(q());
    m_isQuiet = true;
    q()->setText(code);
    if (!self)
        return;
    m_isQuiet = false;
    lastTextLength = code.size();
}

void ZrSearchBoxPrivate::startPickTimer()
{
    // A running clock goes on: both picks are reported as one, the later.
    if (timerId == -1)
        timerId = q()->startTimer(PickDelayMs, Qt::CoarseTimer);
}

void ZrSearchBoxPrivate::stopPickTimer()
{
    q()->killTimer(timerId);
    timerId = -1;
}

// --- keys and presses ---

bool ZrSearchBoxPrivate::takeKeyWithPopup(int key)
{
    if (key == Qt::Key_Escape)
        hidePopup();
    if (key == Qt::Key_Return || key == Qt::Key_Enter)
        takeCurrentRow(completer->popup()->currentIndex());
    return true;
}

void ZrSearchBoxPrivate::takeCurrentRow(const QModelIndex &row)
{
    if (row.isValid())
        pickAndClose(row);
    else
        hidePopup();
}

bool ZrSearchBoxPrivate::takeKeyWithoutPopup(int key)
{
    const bool isEditing = symbol.isEmpty() && !q()->text().isEmpty();
    const bool isTaking = key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Down;
    if (!isEditing || !isTaking)
        return true;
    const QModelIndex row = firstRow();
    if (!row.isValid()) {
        refuse();
        return false;
    }
    pick(row);
    return true;
}

void ZrSearchBoxPrivate::turnAway()
{
    if (!autoMatchWhenFocusOut) {
        // The clock runs even when nothing is picked: who listens hears of the empty symbol too.
        const QPointer<ZrSearchBox> self(q());
        showSymbol();
        if (self)
            startPickTimer();
        return;
    }
    const QModelIndex current = completer->popup()->currentIndex();
    if (!current.isValid()) {
        const QModelIndex row = firstRow();
        if (row.isValid())
            pick(row);
        else
            refuse();
        return;
    }
    const QString chosen = ZrSymbolText::symbolOf(current.data().toString());
    symbol = chosen;
    const QPointer<ZrSearchBox> self(q());
    // Not quiet: the list narrows to the code, and what it leaves open (a code of two markets) stays open.
    q()->setText(ZrSymbolText::shortCode(chosen));
    if (!self)
        return;
    // With the market: the next keys are a correction of this code and don't pick another one by themselves.
    lastTextLength = chosen.size();
    startPickTimer();
}

void ZrSearchBoxPrivate::refuse()
{
    q()->selectAll();
    // Last: the message that it brings up may outlive the box.
    emit q()->signalErrorCode();
}
