#include "ZrItemStyle.h"

#include <QtCore/QEvent>
#include <QtCore/QRegularExpression>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QWidget>

#include <algorithm>
#include <memory>
#include <typeindex>
#include <vector>

namespace {

// By type, not by meta object: a class of a caller may have none of its own. The types are asked of the
// factory, for their headers are not public.
bool isToolkitStyle(const QStyle &style)
{
    static const std::vector<std::type_index> types = [] {
        std::vector<std::type_index> found;
        for (const char *const name : {"Fusion", "Windows"}) {
            const std::unique_ptr<const QStyle> made(QStyleFactory::create(QLatin1String(name)));
            if (const QStyle *const one = made.get())
                found.emplace_back(typeid(*one));
        }
        return found;
    }();
    return std::find(types.cbegin(), types.cend(), std::type_index(typeid(style))) != types.cend();
}

bool readsSheets(const QStyle &style)
{
    return qstrcmp(style.metaObject()->className(), "QStyleSheetStyle") == 0;
}

// What a sheet's style draws with; it has the application's for a child, and widgets with a style of their
// own are left out before.
QStyle *styleBelowSheets()
{
    QStyle *const style = QApplication::style();
    if (!readsSheets(*style))
        return style;
    const auto below = style->findChildren<QStyle *>(QString(), Qt::FindDirectChildrenOnly);
    return below.size() == 1 ? below.constFirst() : nullptr;
}

// An unpolished widget takes a new sheet without a word to those below it.
bool isSettled(const QWidget *widget)
{
    for (; widget; widget = widget->parentWidget()) {
        if (!widget->testAttribute(Qt::WA_WState_Polished))
            return false;
    }
    return true;
}

bool sheetsLeaveItemsAlone(const QWidget *widget)
{
    for (const QWidget *owner = widget; owner; owner = owner->parentWidget()) {
        if (owner->testAttribute(Qt::WA_SetStyle) || ZrItemStyle::rulesItems(owner->styleSheet(), widget))
            return false;
    }
    return !ZrItemStyle::rulesItems(qApp->styleSheet(), widget);
}

// Of each comment a slash is left, of each string its quotes.
QString withoutContents(QString sheet)
{
    static const QRegularExpression contents(QStringLiteral("(/)\\*.*?\\*/|(\")[^\"]*\"|(')[^']*'"),
                                             QRegularExpression::DotMatchesEverythingOption);
    return sheet.replace(contents, QStringLiteral("\\1\\2\\3"));
}

bool isOfClass(const QWidget *widget, const QString &name)
{
    for (const QMetaObject *type = widget->metaObject(); type; type = type->superClass()) {
        const QString typeName =
            QString::fromLatin1(type->className()).replace(QLatin1Char(':'), QLatin1Char('-'));
        if (typeName.compare(name, Qt::CaseInsensitive) == 0)
            return true;
    }
    return false;
}

bool selectsItems(const QString &selector, const QWidget *widget)
{
    static const QRegularExpression itemPart(QStringLiteral(":[\\s/!]*(item|text|icon|indicator)\\b"),
                                             QRegularExpression::CaseInsensitiveOption);
    if (!selector.contains(itemPart))
        return false;
    // Plain words alone are read here; anything else is taken for a rule about items.
    static const QRegularExpression lastType(
        QStringLiteral("(?:^|[\\s>])([A-Za-z_][\\w-]*)[#.:][\\w#.:!-]*\\s*$"));
    const QRegularExpressionMatch subject = lastType.match(selector);
    return !subject.hasMatch() || isOfClass(widget, subject.captured(1));
}

} // namespace

ZrItemStyle::ZrItemStyle(QObject *parent)
    : QObject(parent)
{
}

QStyle *ZrItemStyle::toolkitStyle(const QWidget *widget)
{
    auto known = m_findings.constFind(widget);
    const bool valid = known != m_findings.constEnd() && known->ofWidget == widget->style() &&
                       known->ofApplication == QApplication::style();
    if (!valid && !isSettled(widget))
        return nullptr;
    QStyle *const style = valid ? known->toolkit : find(widget).toolkit;
    // Asked each time: a proxy may be put before a style without a word to its widgets.
    return style && style->proxy() == style ? style : nullptr;
}

const ZrItemStyle::Finding &ZrItemStyle::find(const QWidget *widget)
{
    Finding finding;
    finding.ofWidget = widget->style();
    finding.ofApplication = QApplication::style();
    QStyle *style = widget->style();
    if (readsSheets(*style))
        style = sheetsLeaveItemsAlone(widget) ? styleBelowSheets() : nullptr;
    if (style && isToolkitStyle(*style))
        finding.toolkit = style;
    auto *const watched = const_cast<QWidget *>(widget); // an option holds its widget as const
    watched->installEventFilter(this);
    connect(watched, &QObject::destroyed, this, &ZrItemStyle::forget, Qt::UniqueConnection);
    return *m_findings.insert(widget, finding);
}

bool ZrItemStyle::eventFilter(QObject *watched, QEvent *event)
{
    switch (int(event->type())) {
    case QEvent::StyleChange:
    case QEvent::ParentChange:
    case QEvent::Polish:
        forget(watched);
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void ZrItemStyle::forget(QObject *widget)
{
    m_findings.remove(widget);
}

bool ZrItemStyle::rulesItems(const QString &sheet, const QWidget *widget)
{
    if (sheet.isEmpty())
        return false;
    if (sheet.startsWith(QLatin1String("file:")) || sheet.contains(QLatin1Char('\\')))
        return true;
    const QString bare = withoutContents(sheet);
    if (bare.contains(QLatin1String("/*")) || bare.contains(QLatin1Char('@')))
        return true;
    const QStringList rules = bare.split(QLatin1Char('}'));
    for (const QString &rule : rules) {
        const QString selectors = rule.section(QLatin1Char('{'), 0, 0);
        if (rule.count(QLatin1Char('{')) > 1)
            return true;
        const QStringList parts = selectors.split(QLatin1Char(','));
        const auto isAboutItems = [widget](const QString &selector) {
            return selectsItems(selector, widget);
        };
        if (std::any_of(parts.cbegin(), parts.cend(), isAboutItems))
            return true;
    }
    return false;
}
