#pragma once

#include "zrutils/zrutils_global.h"

#include <QtCore/QThread>

/// The client's thread.
///
/// Ownership: normal QObject parent rules; it must have finished before it is deleted.
class ZRUTILS_EXPORT ZrThread : public QThread
{
    Q_OBJECT
public:
    explicit ZrThread(QObject *parent);
    ~ZrThread() override;
};
