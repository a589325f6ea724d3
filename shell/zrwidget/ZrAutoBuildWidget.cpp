#include "ZrAutoBuildWidget.h"

#include "ZrAutoBuildSubWidgetObject.h"
#include "ZrLabel.h"

#include "zrdefine/Constants.h"

#include <QtCore/QDebug>
#include <QtWidgets/QVBoxLayout>

namespace {
constexpr int PairSpacingPx = 5;     // between a name and its editor
constexpr int CheckBoxSpacingPx = 1; // between a check box and its name

int rowOf(const QVariantMap &record)
{
    return record.value(Constants::STRATEGYPARAM_ROW).toInt();
}

bool isCheckBox(const QVariantMap &record)
{
    return record.value(Constants::STRATEGYPARAM_WIDGETTYPE).toString() == Constants::WIDGETTYPE_CHECKBOX;
}

void fixWidth(QWidget *widget, const QVariantMap &record, const QString &key)
{
    if (widget && record.contains(key))
        widget->setFixedWidth(qBound(0, record.value(key).toInt(), QWIDGETSIZE_MAX));
}

/// Adds a widget unless there is none.
void add(QBoxLayout *layout, QWidget *widget)
{
    if (widget)
        layout->addWidget(widget);
}

/// A row of the form, which takes its place and spacing also when no record stands in it: the toolkit would
/// leave an empty one out.
class FormRow : public QHBoxLayout
{
public:
    bool isEmpty() const override { return false; }
};

/// The records of the form's rows, by row number.
QMap<int, QList<QVariantMap>> byRow(const QList<QVariantMap> &records)
{
    QMap<int, QList<QVariantMap>> rows;
    for (const QVariantMap &record : records) {
        const int row = rowOf(record);
        if (row > ZrAutoBuildWidget::mostRows)
            qWarning() << "ZrAutoBuildWidget::setAutoBuildWidgetDetails row" << row << "is beyond any form";
        else if (row > 0)
            rows[row].append(record);
    }
    return rows;
}
} // namespace

ZrAutoBuildWidget::ZrAutoBuildWidget(QWidget *parent)
    : QWidget(parent)
    , m_editors(new ZrAutoBuildSubWidgetObject)
{
    auto *const whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
}

ZrAutoBuildWidget::~ZrAutoBuildWidget()
{
    qDebug() << "~ZrAutoBuildWidget";
}

void ZrAutoBuildWidget::setAutoBuildWidgetDetails(const QList<QVariantMap> &records, int mode)
{
    replaceContent();
    auto *const content = new QVBoxLayout(m_content);
    content->setContentsMargins(0, 0, 0, 0);
    content->setSpacing(m_lineSpacingPx);
    layout()->addWidget(m_content);
    m_records = records;
    m_mode = mode;
    const Editors editors = m_editors->setAutoBuildWidgetDetails(records, m_content);

    const QMap<int, QList<QVariantMap>> rows = byRow(records);
    const int lastRow = rows.isEmpty() ? 0 : rows.lastKey();
    for (int row = 1; row <= lastRow; ++row)
        addRow(content, rows.value(row), editors);
    if (lastRow > 0)
        content->addItem(new QSpacerItem(0, 0, QSizePolicy::Minimum, QSizePolicy::Preferred));
}

void ZrAutoBuildWidget::replaceContent()
{
    if (m_content) {
        layout()->removeWidget(m_content);
        m_content->close();
        delete m_content;
    }
    m_content = new QWidget(this);
}

void ZrAutoBuildWidget::addRow(QVBoxLayout *rows, const QList<QVariantMap> &records, const Editors &editors)
{
    auto *const row = new FormRow;
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(m_rowSpacingPx);
    for (const QVariantMap &record : records) {
        const QString id = record.value(Constants::STRATEGYPARAM_PARAMID).toString();
        row->addLayout(makePair(record, editors.value(id)));
    }
    row->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding, QSizePolicy::Minimum));
    rows->addLayout(row);
}

QBoxLayout *ZrAutoBuildWidget::makePair(const QVariantMap &record, QWidget *editor)
{
    const bool boxComesFirst = isCheckBox(record);
    const QString name = record.value(Constants::STRATEGYPARAM_PARAMNAME).toString();
    auto *const label = new ZrLabel(boxComesFirst ? name : name + QStringLiteral("："), m_content);
    fixWidth(label, record, Constants::STRATEGYPARAM_NAMEWIDTH);
    fixWidth(editor, record, Constants::STRATEGYPARAM_WIDGETWIDTH);

    auto *const pair = new QHBoxLayout;
    pair->setContentsMargins(0, 0, 0, 0);
    pair->setSpacing(boxComesFirst ? CheckBoxSpacingPx : PairSpacingPx);
    add(pair, boxComesFirst ? editor : label);
    add(pair, boxComesFirst ? label : editor);
    return pair;
}

void ZrAutoBuildWidget::setInitialBasicParamData(const QVariantMap &values)
{
    m_editors->setInitialBasicParamData(values, m_mode);
}

QMap<QString, QVariant> ZrAutoBuildWidget::getAutoBuildData() const
{
    return m_editors->getAutoBuildData();
}

ZrAutoBuildSubWidgetObject *ZrAutoBuildWidget::getAutoBuildSubWidgetObject() const
{
    return m_editors.get();
}

void ZrAutoBuildWidget::setHBoxSpacing(int spacingPx)
{
    m_rowSpacingPx = spacingPx;
}

void ZrAutoBuildWidget::setVBoxSpacing(int spacingPx)
{
    m_lineSpacingPx = spacingPx;
}
