#include "ZrAlgoParamSettingWidget.h"

#include "ZrAlgoParamSettingWidget_p.h"
#include "ZrAutoBuildWidget.h"
#include "ZrParamBasicTable.h"
#include "ZrParamInitialTable.h"

ZrAlgoParamSettingWidget::ZrAlgoParamSettingWidget(QWidget *parent)
    : QWidget(parent)
    , d(new ZrAlgoParamSettingWidgetPrivate(this))
{
}

// Before the widgets: their last signals must not reach a private part that is gone half.
ZrAlgoParamSettingWidget::~ZrAlgoParamSettingWidget()
{
    delete d;
}

ZrAlgoParamSettingWidgetPrivate *ZrAlgoParamSettingWidget::getPrivate() const
{
    return d;
}

void ZrAlgoParamSettingWidget::setAutoBuildWidgetDetails(const QString &file, int mode)
{
    d->build(file, mode);
}

void ZrAlgoParamSettingWidget::setInitialBasicParamData(const QVariantMap &values)
{
    if (d->basicForm)
        d->basicForm->setInitialBasicParamData(values);
    else if (d->basicTable)
        d->basicTable->fill(values, d->mode);
}

void ZrAlgoParamSettingWidget::setInitialParamData(const QMap<QString, QList<QVariantMap>> &values)
{
    for (auto rows = values.cbegin(); rows != values.cend(); ++rows) {
        if (ZrParamInitialTable *const table = d->table(rows.key()))
            table->fill(*rows);
    }
}

int ZrAlgoParamSettingWidget::getInitialBasicParamData(QVariantMap &values) const
{
    return d->basicValues(&values);
}

int ZrAlgoParamSettingWidget::getInitialParamData(QMap<QString, QList<QVariantMap>> &values,
                                                  bool validate) const
{
    return d->tableValues(&values, validate);
}

QMap<QString, ZrTableView *> ZrAlgoParamSettingWidget::getInitialParamViewWidget() const
{
    return d->views;
}

void ZrAlgoParamSettingWidget::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    d->fit();
}
