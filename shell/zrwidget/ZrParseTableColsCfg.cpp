#include "ZrParseTableColsCfg.h"

#include "ZrColumnFileGuard.h"

#include <QtCore/QDebug>
#include <QtCore/QFile>
#include <QtXml/QDomDocument>

namespace {
QString attributeOf(const QDomElement &element, const char *name)
{
    return element.attribute(QLatin1String(name));
}

int intOrUnset(const QString &text)
{
    return text.isEmpty() ? -1 : text.toInt();
}

bool flagOf(const QString &text)
{
    // Only numbers count: the word "true" reads as 0 and so as false.
    return text.toInt() != 0;
}
} // namespace

ZrParseTableColsCfg::ZrParseTableColsCfg() = default;

ZrGridSetting ZrParseTableColsCfg::parseGridConfigure(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        qWarning() << "Error: Open column configuration file " << fileName;
        return ZrGridSetting();
    }
    // One byte beyond the bound is enough for the guard to see that there is more.
    const ZrColumnFileGuard::Verdict verdict =
        ZrColumnFileGuard::check(file.read(ZrColumnFileGuard::MaxBytes + 1));
    if (!verdict.accepted) {
        warnParseFailure(fileName, verdict.line, verdict.column, verdict.message);
        return ZrGridSetting();
    }
    QDomDocument document;
    QString message;
    int line = 0;
    int column = 0;
    if (!document.setContent(verdict.text, false, &message, &line, &column)) {
        warnParseFailure(fileName, line, column, message);
        return ZrGridSetting();
    }
    const QDomElement root = document.documentElement();
    if (root.tagName() != QLatin1String("GridSetting")) {
        qWarning() << "Error: column configuration file " << fileName << "Not a GridSetting file";
        return ZrGridSetting();
    }
    ZrGridSetting grid = parseGridSetting(root);
    grid.sortZrFieldSetting();
    return grid;
}

void ZrParseTableColsCfg::warnParseFailure(const QString &fileName, int line, int column,
                                           const QString &message)
{
    qWarning() << "Error: Parse column configuration file " << fileName << "error at line " << line << ", "
               << "column " << column << ": " << message.toLocal8Bit().constData();
}

ZrGridSetting ZrParseTableColsCfg::parseGridSetting(const QDomElement &root)
{
    ZrGridSetting grid;
    for (QDomNode node = root.firstChild(); !node.isNull(); node = node.nextSibling()) {
        const QDomElement element = node.toElement();
        if (element.tagName() == QLatin1String("FieldSetting"))
            parseFieldSetting(element, grid);
    }
    return grid;
}

void ZrParseTableColsCfg::parseFieldSetting(const QDomElement &element, ZrGridSetting &grid)
{
    grid.addFieldSetting(ZrFieldSetting(
        intOrUnset(attributeOf(element, "Index")), attributeOf(element, "TitleName"),
        attributeOf(element, "FieldNumber"), intOrUnset(attributeOf(element, "ColumnWidth")),
        attributeOf(element, "Type"), attributeOf(element, "DisplayRole_Property"),
        attributeOf(element, "UserRole_Property"), attributeOf(element, "ExportViewRole_Property"),
        handleColAlignmentProperty(attributeOf(element, "ColumnAlignment")),
        flagOf(attributeOf(element, "KeyColumn")), flagOf(attributeOf(element, "Filterable")),
        intOrUnset(attributeOf(element, "Decimal")), attributeOf(element, "Date_Style"),
        attributeOf(element, "Role")));
}

int ZrParseTableColsCfg::handleColAlignmentProperty(QString word)
{
    if (word == QLatin1String("Center"))
        return Qt::AlignCenter;
    if (word == QLatin1String("Left"))
        return Qt::AlignLeft | Qt::AlignVCenter;
    if (word == QLatin1String("Right"))
        return Qt::AlignRight | Qt::AlignVCenter;
    return 0; // the view keeps its default
}
