#include "zrcm/Id.h"

#include "ZrKnownIds.h"

#include <QtCore/QVariant>

class Id::Private
{
public:
    QString text;
};

Id::Id()
    : d(new Private)
{
}

Id::Id(const Id &other)
    : d(new Private(*other.d))
{
}

Id &Id::operator=(const Id &other)
{
    *d = *other.d;
    return *this;
}

Id::~Id()
{
    delete d;
}

Id Id::fromSetting(const QVariant &setting)
{
    Id id;
    // Only what is a text: a number in a setting that happens to print like an ID names nothing.
    if (setting.userType() != QMetaType::QString && setting.userType() != QMetaType::QByteArray)
        return id;
    const QString text = setting.toString();
    if (ZrKnownIds::contains(text))
        id.d->text = text;
    return id;
}

bool Id::isNull() const
{
    return d->text.isEmpty();
}

QString Id::toString() const
{
    return d->text;
}

bool Id::operator==(const Id &other) const
{
    return d->text == other.d->text;
}

bool Id::operator!=(const Id &other) const
{
    return !(*this == other);
}
