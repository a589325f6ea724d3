#include "zrcm/Id.h"

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
Id::~Id()
{
    delete d;
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
    return d->text != other.d->text;
}

Id &Id::operator=(const Id &other)
{
    *d = *other.d;
    return *this;
}

Id Id::fromSetting(const QVariant &setting)
{
    Id id;
    id.d->text = setting.toString();
    return id;
}
