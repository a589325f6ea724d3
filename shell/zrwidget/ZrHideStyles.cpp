#include "ZrHideStyles.h"

#include "zrutils/ZrCommonUtils.h"

#include <QtCore/QDebug>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

namespace {

QJsonObject objectOf(const QString &json)
{
    QJsonDocument document;
    if (json.isEmpty())
        return {};
    if (json.size() > ZrHideStyles::maxCharacters || !ZrCommonUtils::canCreateJsonDocu(document, json)) {
        qWarning() << "ZrHideStyles"
                   << "no usable JSON:" << json.left(64);
        return {};
    }
    return document.object();
}

/// Counts what was left out of a text, and says so once.
class LeftOut
{
public:
    ~LeftOut()
    {
        if (m_count > 0)
            qWarning() << "ZrHideStyles"
                       << "entries beyond the bounds left out:" << m_count;
    }
    /// Whether one more entry of this name fits into a container of this size.
    bool fits(const QString &name, bool isNew, int size, int most)
    {
        return count(name.size() <= ZrHideStyles::maxNameCharacters && (!isNew || size < most));
    }
    bool count(bool isInside)
    {
        m_count += isInside ? 0 : 1;
        return isInside;
    }

private:
    int m_count = 0;
};

void addColumns(const QJsonArray &array, QList<int> *columns, LeftOut *leftOut)
{
    for (const QJsonValue &value : array) {
        const int column = value.toString().toInt();
        const bool isSane = column >= ZrHideStyles::leastColumn && column <= ZrHideStyles::mostColumn;
        if (leftOut->count(isSane && columns->size() < ZrHideStyles::maxColumns))
            columns->append(column);
    }
}

void addStyles(const QJsonObject &object, QMap<QString, QList<int>> *styles, LeftOut *leftOut)
{
    for (auto style = object.begin(); style != object.end(); ++style) {
        if (leftOut->fits(style.key(), !styles->contains(style.key()), styles->size(),
                          ZrHideStyles::maxStyles))
            addColumns(style.value().toArray(), &(*styles)[style.key()], leftOut);
    }
}

QString compact(const QVariantMap &map)
{
    return QString::fromUtf8(QJsonDocument(QJsonObject::fromVariantMap(map)).toJson(QJsonDocument::Compact));
}

} // namespace

void ZrHideStyles::addCustom(const QString &json)
{
    LeftOut leftOut;
    const QJsonObject object = objectOf(json);
    for (auto view = object.begin(); view != object.end(); ++view) {
        if (leftOut.fits(view.key(), !custom.contains(view.key()), custom.size(), maxViews))
            addStyles(view.value().toObject(), &custom[view.key()], &leftOut);
    }
}

void ZrHideStyles::readCurrent(const QString &json)
{
    LeftOut leftOut;
    const QJsonObject object = objectOf(json);
    for (auto view = object.begin(); view != object.end(); ++view) {
        const QString style = view.value().toString();
        if (leftOut.fits(view.key(), !current.contains(view.key()), current.size(), maxViews) &&
            leftOut.count(style.size() <= maxNameCharacters))
            current.insert(view.key(), style);
    }
}

QString ZrHideStyles::customText() const
{
    QVariantMap views;
    for (auto view = custom.cbegin(); view != custom.cend(); ++view) {
        QVariantMap styles;
        for (auto style = view->cbegin(); style != view->cend(); ++style) {
            QVariantList columns;
            for (const int column : *style)
                columns.append(QString::number(column));
            styles.insert(style.key(), columns);
        }
        views.insert(view.key(), styles);
    }
    return compact(views);
}

QString ZrHideStyles::currentText() const
{
    QVariantMap styles;
    for (auto style = current.cbegin(); style != current.cend(); ++style)
        styles.insert(style.key(), style.value());
    return compact(styles);
}

std::optional<QList<int>> ZrHideStyles::currentColumns(const QString &caption) const
{
    const auto style = current.constFind(caption);
    if (style == current.cend())
        return std::nullopt;
    return custom.value(caption).value(*style);
}
