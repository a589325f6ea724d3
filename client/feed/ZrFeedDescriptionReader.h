#pragma once

#include "ZrFeedDescription.h"

/// Reads a feed description file.
///
/// Shape:  JSON as docs/feed-description.md lays it out; paths in it are relative to its folder.
/// Errors: read() gives false and one sentence that names the file, the key and what is wrong. The
///         recorded files themselves are not opened here.
class ZrFeedDescriptionReader
{
public:
    static bool read(const QString &path, ZrFeedDescription *description, QString *error);
};
