#include "ZrMultiComboBox.h"

#include "CheckBoxInMultiBox.h"
#include "ZrMultiComboEdit.h"
#include "ZrMultiComboKeys.h"
#include "ZrMultiComboList.h"
#include "ZrPlainTip.h"

#include "zrcore/ZrCore.h"
#include "zrdefine/Constants.h"

#include <QtCore/QSignalBlocker>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QScrollBar>

ZrMultiComboBox::ZrMultiComboBox(QWidget *parent)
    : QComboBox(parent)
    , m_list(new ZrMultiComboList(this))
    , m_edit(new ZrMultiComboEdit(this))
{
    m_edit->installEventFilter(this);
    installEventFilter(this);
    setModel(m_list->model());
    setView(m_list);
    setLineEdit(m_edit);
    setFrame(false);
    // Nothing is typed, so nothing is completed.
    m_edit->setCompleter(nullptr);
    m_list->takeOwnLook();
    m_edit->setAccessibleName(tr("Selected items"));
    new ZrPlainTip(m_edit);
    new ZrMultiComboKeys(this, m_list);
    // The base writes its current item into the editor; what stands there is ours to say.
    connect(m_edit, &QLineEdit::textChanged, this, &ZrMultiComboBox::packShowText);
    // On a parent with a style sheet the parts have asked that sheet for their look already, and the toolkit
    // forgets those answers for another sheet only once the box is polished.
    ensurePolished();
    ZrCore::instance()->addStyle2View(this, Constants::SKIN_SYSTEM +
                                                QStringLiteral("zrwidget/zrmulticombobox.css"));
}

ZrMultiComboBox::~ZrMultiComboBox()
{
    // The base's end changes the editor once more.
    if (m_edit)
        disconnect(m_edit, nullptr, this, nullptr);
}

void ZrMultiComboBox::addItem(const QString &text, const QVariant &data)
{
    listenTo(m_list->addRows({{text, data}}).constFirst());
}

void ZrMultiComboBox::addItems(const QStringList &texts)
{
    QVector<ZrMultiComboList::Row> rows;
    rows.reserve(texts.size());
    for (const QString &text : texts)
        rows.append({text, text});
    const QVector<CheckBoxInMultiBox *> boxes = m_list->addRows(rows);
    for (const CheckBoxInMultiBox *const box : boxes)
        listenTo(box);
}

void ZrMultiComboBox::listenTo(const CheckBoxInMultiBox *box)
{
    connect(box, &QCheckBox::stateChanged, this, &ZrMultiComboBox::stateChanged);
}

void ZrMultiComboBox::clear()
{
    m_list->clear();
    m_selectedText.clear();
    if (m_edit)
        m_edit->clear();
    QComboBox::clear();
}

void ZrMultiComboBox::removeItem(int index)
{
    if (index < 0 || index >= m_list->count())
        return;
    if (isIndexSelected(index))
        selectIndex(index, false);
    QComboBox::removeItem(index);
}

QVariant ZrMultiComboBox::itemData(int index, int role) const
{
    const QListWidgetItem *const item = m_list->item(index);
    return item ? item->data(role) : QVariant();
}

QString ZrMultiComboBox::itemText(int index) const
{
    return m_list->textAt(index);
}

void ZrMultiComboBox::selectIndex(int index, bool selected)
{
    if (setTicked(index, selected))
        packShowText();
}

void ZrMultiComboBox::selectIndexes(const QList<int> &indexes, bool selected)
{
    bool isChanged = false;
    for (const int index : indexes)
        isChanged = setTicked(index, selected) || isChanged;
    if (isChanged)
        packShowText();
}

bool ZrMultiComboBox::setTicked(int index, bool ticked)
{
    const QPointer<CheckBoxInMultiBox> box = m_list->boxAt(index);
    if (!box || box->isChecked() == ticked)
        return false;
    // Others may listen to the box too, and hear of it.
    disconnect(box, &QCheckBox::stateChanged, this, &ZrMultiComboBox::stateChanged);
    box->setChecked(ticked);
    if (m_list->rowOf(box) < 0) // one of them removed the row
        return true;
    box->setCheckState(ticked ? Qt::Checked : Qt::Unchecked);
    listenTo(box);
    return true;
}

bool ZrMultiComboBox::isIndexSelected(int index) const
{
    const CheckBoxInMultiBox *const box = m_list->boxAt(index);
    return box && box->isChecked();
}

QList<int> ZrMultiComboBox::getCurrentSelectedIndex() const
{
    return m_list->tickedRows();
}

QList<QVariant> ZrMultiComboBox::getCurrentSelectedIndexData() const
{
    QList<QVariant> data;
    const QList<int> rows = m_list->tickedRows();
    for (const int row : rows)
        data.append(itemData(row, Qt::UserRole));
    return data;
}

QList<QString> ZrMultiComboBox::getCurrentSelectedIndexText() const
{
    return m_list->tickedTexts();
}

void ZrMultiComboBox::setNoSelectedText(const QString &text)
{
    m_noSelectedText = text;
    packShowText();
}

void ZrMultiComboBox::resizeListWidth(int widthPx)
{
    m_list->setFixedWidth(widthPx);
}

bool ZrMultiComboBox::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonRelease && watched == m_edit && !m_list->isVisible() &&
        m_edit->isEnabled())
        showPopup();
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        // Consumed on the closed box as well: a dialog around it must not take its default button for pressed
        // by who has just closed the popup the same way.
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            hidePopup();
            return true;
        }
    }
    return QComboBox::eventFilter(watched, event);
}

void ZrMultiComboBox::showPopup()
{
    QComboBox::showPopup();
}

void ZrMultiComboBox::hidePopup()
{
    // The next opening starts from the top.
    m_list->scrollToTop();
    m_list->verticalScrollBar()->setSliderPosition(0);
    QComboBox::hidePopup();
}

void ZrMultiComboBox::loadSkin(const QVariant &css)
{
    if (css.isValid())
        setStyleSheet(css.toString());
}

void ZrMultiComboBox::stateChanged(int)
{
    m_selectedText.clear();
    const QPointer<ZrMultiComboBox> self(this);
    const int row = m_list->rowOf(sender());
    if (row >= 0)
        emit signalIndexClicked(row);
    // A slot may have ended the box.
    if (!self)
        return;
    packShowText();
    emit signalCurrentSelectedChanged(m_selectedText);
}

void ZrMultiComboBox::packShowText()
{
    const ZrTickedTexts::Joined ticked = m_list->joinedTicks(QLatin1Char(';'));
    m_selectedText = ticked.text;
    if (!m_edit)
        return;
    // Blocked: the change would call this again.
    const QSignalBlocker blocker(m_edit);
    if (ticked.count == 0) {
        m_edit->setShownText(m_noSelectedText);
    } else {
        m_edit->setShownText(m_selectedText);
        m_edit->setToolTip(m_selectedText);
    }
}
