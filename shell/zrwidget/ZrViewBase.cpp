#include "ZrViewBase.h"

#include "ZrViewBase_p.h"

ZrViewBase::ZrViewBase(QWidget *parent)
    : QWidget(parent)
    , d(new ZrViewBasePrivate(this))
{
}

ZrViewBase::~ZrViewBase() = default;

void ZrViewBase::showCfgPanel() {}

bool ZrViewBase::exportViewData()
{
    return false;
}

QString ZrViewBase::GetViewCaption() const
{
    return d->caption;
}

void ZrViewBase::SetViewCaption(const QString &caption)
{
    d->caption = caption;
}

bool ZrViewBase::GetRowCheckOnClickEnable() const
{
    return d->rowCheckOnClickEnable;
}

void ZrViewBase::SetRowCheckOnClickEnable(bool enable)
{
    d->rowCheckOnClickEnable = enable;
}

bool ZrViewBase::canCfgFromPluginSetting() const
{
    return d->canCfgFromPluginSetting;
}

void ZrViewBase::setCanCfgFromPluginSetting(bool can)
{
    d->canCfgFromPluginSetting = can;
}
