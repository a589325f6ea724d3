#include "ZrParamLineRule.h"

#include "ZrParamLink.h"
#include "ZrParamPattern.h"

#include <QtCore/QDebug>
#include <QtCore/QMetaType>
#include <QtGui/QRegExpValidator>
#include <QtWidgets/QLineEdit>

#include <memory>

namespace {
const char *const RuleProperty = "zrParamLineRule"; // on an edit: the rule that goes with it
} // namespace

Q_DECLARE_METATYPE(std::shared_ptr<QRegExpValidator>)

void ZrParamLineRule::install(QLineEdit *edit, const QString &pattern)
{
    if (!edit || pattern.isEmpty())
        return;
    const QRegExp expression(pattern, Qt::CaseSensitive, QRegExp::RegExp);
    if (!expression.isValid())
        qWarning() << "ZrParamLineRule::install" << pattern << expression.errorString();
    // The validator has no parent, so the edit carries it.
    const auto rule = std::make_shared<QRegExpValidator>(expression, nullptr);
    edit->setValidator(rule.get());
    edit->setProperty(RuleProperty, QVariant::fromValue(rule));
}

void ZrParamLineRule::relink(QWidget *widget, const ZrParamLink &link)
{
    install(qobject_cast<QLineEdit *>(widget), ZrParamPattern::ofChanged(link));
}
