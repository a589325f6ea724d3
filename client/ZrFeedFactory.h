#pragma once

#include "feed/ZrFeedSource.h"

#include <QtCore/QStringList>
#include <QtCore/QVariantMap>

#include <memory>

struct ZrWorkstationOptions;

/// Makes the feed that the options name, with the securities and accounts of the host.
///
/// Threads: GUI thread only: it asks the host's data.
/// Errors:  null and one sentence.
class ZrFeedFactory
{
public:
    /// `recordings` are the folders in which shipped recordings lie.
    static std::unique_ptr<ZrFeedSource> make(const ZrWorkstationOptions &options,
                                              const QStringList &recordings, QString *error);
    /// The accounts that orders of a feed may have, as records of the fields that the blotter shows.
    static QList<QVariantMap> accounts();
};
