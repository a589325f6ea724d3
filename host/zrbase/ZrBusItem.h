#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>

/// Which receiver of an endpoint an item is for.
enum class ZrBusKind { Message, Event, Quotation };

/// One thing on its way over the bus, apart from whom it goes to.
///
/// Shape:     a value; its parts are implicitly shared, so that one item goes to many endpoints.
/// Threads:   a value of its own on any thread.
struct ZrBusItem
{
    ZrBusKind kind = ZrBusKind::Message;
    QString source; // who sent it; for an answer who asked; empty for what the host published
    QString asker;  // of an answer: who gets it besides the subscribers; empty for all else
    QVariant type;
    QVariant body;

    /// The form in which types are compared: a number and its decimal text are one type.
    QString typeKey() const { return type.toString(); }
};
