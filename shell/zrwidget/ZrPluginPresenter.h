#pragma once

#include "zrwidget_global.h"

#include <functional>
#include <memory>

class ZrPresenterClass;

/// A plugin's way to its presenter, which isn't the plugin's own and may go at any moment, on any thread.
///
/// Shape:     one presenter at a time; a later one takes the place of the one before, whose end then
///            concerns nobody here.
/// Ownership: the presenter is borrowed. use() keeps it from going while it works.
/// Threads:   set() and use() on one thread; the presenter ends on any.
/// Errors:    without a presenter nothing is done.
class ZRWIDGET_PRIVATE_EXPORT ZrPluginPresenter
{
public:
    ZrPluginPresenter();
    ~ZrPluginPresenter();

    /// A living presenter; null is ignored.
    void set(ZrPresenterClass *presenter);
    /// Null once the presenter is on its way out. For a call to it, take use().
    ZrPresenterClass *get() const;
    /// False when there was none to work with.
    bool use(const std::function<void(ZrPresenterClass *)> &work) const;

private:
    ZrPluginPresenter(const ZrPluginPresenter &) = delete;
    ZrPluginPresenter &operator=(const ZrPluginPresenter &) = delete;

    struct Seat;
    const std::shared_ptr<Seat> m_seat; // shared with the ends of the presenters, which may outlive us
};
