#pragma once

#include "ZrPluginBaseWidget.h"

#include <functional>

/// A plugin that counts what is asked of it.
class HostedPlugin : public ZrPluginBaseWidget
{
public:
    using ZrPluginBaseWidget::ZrPluginBaseWidget;

    void initPlugin() override {}
    void refresh() override
    {
        ++refreshes;
        if (onRefresh)
            onRefresh();
    }
    int isCloseable(QString &reason) override
    {
        ++questions;
        if (onQuestion)
            onQuestion();
        return ZrPluginBaseWidget::isCloseable(reason);
    }

    int refreshes = 0;
    int questions = 0;
    std::function<void()> onRefresh;
    std::function<void()> onQuestion;
};
