#include "ZrParamSpinKind.h"

#include "zrdefine/Constants.h"

#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QSpinBox>

namespace {
constexpr double MostDouble = 1152921504606846976.0; // 2 to the 60th
constexpr int MostInt = 0xFFFFFFF;
// The range of a 64-bit number has no place in a spin box of ints, so the record tells it. One that tells
// none is left with nothing to choose: required, it shows that the description is wrong.
constexpr int MostInt64 = -1;
constexpr int MostTenfolds = 101; // beyond that a step is no decimal fraction

/// Digits behind the full stop that a step below 1 needs; -1 when it is too small for any.
int decimalsOf(double step)
{
    for (int tenfolds = 1; tenfolds <= MostTenfolds; ++tenfolds) {
        step *= 10;
        if (step >= 1.0)
            return tenfolds;
    }
    return -1;
}

QWidget *makeDouble(const QVariantMap &record, QWidget *parent)
{
    auto *const box = new QDoubleSpinBox(parent);
    box->setMaximum(MostDouble);
    if (record.contains(Constants::STRATEGYPARAM_MINVALUE))
        box->setMinimum(record.value(Constants::STRATEGYPARAM_MINVALUE).toDouble());
    if (record.contains(Constants::STRATEGYPARAM_MAXVALUE))
        box->setMaximum(record.value(Constants::STRATEGYPARAM_MAXVALUE).toDouble());
    if (record.contains(Constants::STRATEGYPARAM_STEP)) {
        const double step = record.value(Constants::STRATEGYPARAM_STEP).toDouble();
        box->setSingleStep(step);
        const int decimals = step > 0 && step < 1 ? decimalsOf(step) : -1;
        if (decimals > 0)
            box->setDecimals(decimals);
    }
    if (record.contains(Constants::STRATEGYPARAM_INIT))
        box->setValue(record.value(Constants::STRATEGYPARAM_INIT).toDouble());
    return box;
}

QWidget *makeInt(const QVariantMap &record, QWidget *parent, int most)
{
    auto *const box = new QSpinBox(parent);
    box->setMaximum(most);
    if (record.contains(Constants::STRATEGYPARAM_MINVALUE))
        box->setMinimum(record.value(Constants::STRATEGYPARAM_MINVALUE).toInt());
    if (record.contains(Constants::STRATEGYPARAM_MAXVALUE))
        box->setMaximum(record.value(Constants::STRATEGYPARAM_MAXVALUE).toInt());
    if (record.contains(Constants::STRATEGYPARAM_STEP))
        box->setSingleStep(record.value(Constants::STRATEGYPARAM_STEP).toInt());
    if (record.contains(Constants::STRATEGYPARAM_INIT))
        box->setValue(record.value(Constants::STRATEGYPARAM_INIT).toInt());
    return box;
}
} // namespace

QWidget *ZrParamSpinKind::make(const QVariantMap &record, QWidget *parent, const ZrParamLink &) const
{
    const QString type = record.value(Constants::STRATEGYPARAM_VALUETYPE).toString();
    if (type == Constants::VALUETYPE_DOUBLE)
        return makeDouble(record, parent);
    if (type == Constants::VALUETYPE_INT)
        return makeInt(record, parent, MostInt);
    return type == Constants::VALUETYPE_INT64 ? makeInt(record, parent, MostInt64) : nullptr;
}

QVariant ZrParamSpinKind::read(const QWidget *widget, int) const
{
    if (const auto *const box = qobject_cast<const QDoubleSpinBox *>(widget))
        return box->value();
    const auto *const box = qobject_cast<const QSpinBox *>(widget);
    return box ? box->value() : QVariant();
}

void ZrParamSpinKind::write(QWidget *widget, const QVariant &value, bool isEditable) const
{
    auto *const fraction = qobject_cast<QDoubleSpinBox *>(widget);
    auto *const whole = qobject_cast<QSpinBox *>(widget);
    if (fraction)
        fraction->setValue(value.toDouble());
    if (whole)
        whole->setValue(value.toInt());
    if (!isEditable && (fraction || whole))
        lock(static_cast<QAbstractSpinBox *>(widget));
}
