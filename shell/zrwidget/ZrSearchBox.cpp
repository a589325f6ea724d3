#include "ZrSearchBox.h"

#include "ZrItemModelDeletage.h"
#include "ZrSearchBox_p.h"
#include "ZrTableView.h"

#include "zrbusinessdata/CBusinessDataBase.h"

#include <QtCore/QDebug>
#include <QtCore/QPointer>
#include <QtCore/QRegExp>
#include <QtGui/QKeyEvent>
#include <QtGui/QRegExpValidator>

namespace {
constexpr int WidthPx = 120;
constexpr int MinMatchLength = 6; // of a whole code
constexpr int MostRows = 100;
} // namespace

ZrSearchBox::ZrSearchBox(QWidget *parent)
    : QLineEdit(parent)
    , m_own(new ZrSearchBoxPrivate(this))
{
    Q_D(ZrSearchBox);
    adjustSize();
    resize(WidthPx, height());
    d->init(QStringList());
    const QRegExp code(QStringLiteral("[a-zA-Z0-9]{1,8}"), Qt::CaseSensitive, QRegExp::RegExp);
    setValidator(new QRegExpValidator(code, this));
    connect(this, &QLineEdit::textChanged, this, &ZrSearchBox::slotSetCompleter);
    connect(this, &ZrSearchBox::signalErrorCode, this, &ZrSearchBox::slotErrorCode);
    d->maxFilterShowSize = MostRows;
    d->minMatchLength = MinMatchLength;
}

ZrSearchBox::~ZrSearchBox() = default;

void ZrSearchBox::setSecurityType(QString type)
{
    Q_D(ZrSearchBox);
    d->securityType = type;
    d->loadSecurities();
}

int ZrSearchBox::setSecurityList(const QStringList &list)
{
    Q_D(ZrSearchBox);
    d->init(list);
    return 0;
}

void ZrSearchBox::setSymbol(QString symbol)
{
    Q_D(ZrSearchBox);
    if (d->symbol == symbol)
        return;
    d->symbol = symbol;
    d->showSymbol();
}

QString ZrSearchBox::getSymbol() const
{
    Q_D(const ZrSearchBox);
    return d->symbol;
}

void ZrSearchBox::setSearchMode(int mode)
{
    Q_D(ZrSearchBox);
    d->searchMode = mode;
    d->applySearchMode();
}

void ZrSearchBox::setMinMatchLength(int length)
{
    Q_D(ZrSearchBox);
    d->minMatchLength = length;
}

void ZrSearchBox::setMaxFilterShowSize(int rows)
{
    Q_D(ZrSearchBox);
    d->maxFilterShowSize = rows;
}

void ZrSearchBox::setAutoMatchWhenFocusOut(bool match)
{
    Q_D(ZrSearchBox);
    d->autoMatchWhenFocusOut = match;
}

void ZrSearchBox::setEmitErrorAtFocusOut(bool emitError)
{
    Q_D(ZrSearchBox);
    d->emitErrorAtFocusOut = emitError;
}

void ZrSearchBox::setErrorCodeMsgBoxOn(bool on)
{
    Q_D(ZrSearchBox);
    d->errorCodeMsgBoxOn = on;
}

void ZrSearchBox::setSearchAllWhenEmpty(bool search)
{
    Q_D(ZrSearchBox);
    d->searchAllWhenEmpty = search;
}

void ZrSearchBox::popCompleter(bool pop)
{
    Q_D(ZrSearchBox);
    if (pop)
        d->openPopup();
    else
        d->hidePopup();
}

bool ZrSearchBox::listViewVisiable() const
{
    Q_D(const ZrSearchBox);
    return d->isPopupVisible();
}

void ZrSearchBox::keyPressEvent(QKeyEvent *event)
{
    Q_D(ZrSearchBox);
    if (d->securityList.isEmpty() && d->searchAllWhenEmpty)
        d->loadSecurities();
    const QPointer<ZrSearchBox> self(this);
    const bool isForBase =
        d->isPopupVisible() ? d->takeKeyWithPopup(event->key()) : d->takeKeyWithoutPopup(event->key());
    if (self && isForBase)
        QLineEdit::keyPressEvent(event);
}

void ZrSearchBox::focusOutEvent(QFocusEvent *event)
{
    Q_D(ZrSearchBox);
    if (d->emitErrorAtFocusOut && d->symbol.isEmpty() && !text().isEmpty()) {
        const QPointer<ZrSearchBox> self(this);
        emit signalErrorCode();
        if (!self)
            return;
    }
    QLineEdit::focusOutEvent(event);
}

void ZrSearchBox::timerEvent(QTimerEvent *event)
{
    Q_D(ZrSearchBox);
    if (event->timerId() != d->timerId) {
        QLineEdit::timerEvent(event);
        return;
    }
    d->stopPickTimer();
    qDebug() << "000000000000000000000" << d->symbol;
    const QPointer<ZrSearchBox> self(this);
    emit selectStockNameChange(
        CBusinessDataBase::GetInstance()->GetSecurityChineseName(d->symbol, QString()));
    if (self)
        emit selectStockCodeChange(text());
    if (self)
        finishCellEdit();
}

void ZrSearchBox::finishCellEdit()
{
    const ZrTableView *table = nullptr;
    for (const QWidget *at = parentWidget(); at && !table; at = at->parentWidget())
        table = qobject_cast<const ZrTableView *>(at);
    const QPointer<ZrItemModelDeletage> delegate = table ? table->getZrTableItemDelegate() : nullptr;
    if (!delegate)
        return;
    const QPointer<ZrSearchBox> self(this);
    emit delegate->commitData(this);
    if (self && delegate)
        emit delegate->closeEditor(this, QAbstractItemDelegate::SubmitModelCache);
}

void ZrSearchBox::slotSetCompleter(const QString &text)
{
    Q_D(ZrSearchBox);
    d->narrow(text);
}

void ZrSearchBox::slotCompleteText(const QModelIndex &index)
{
    Q_D(ZrSearchBox);
    d->pickAndClose(index);
}

void ZrSearchBox::completerFocusOutEvent()
{
    Q_D(ZrSearchBox);
    d->turnAway();
}
