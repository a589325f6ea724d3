#pragma once

#include "zrbase/zrbase_global.h"

#include <QtCore/QString>

/// What goes wrong on the road from the back end, each with its probability from 0 to 1.
///
/// Shape:   a value, written as "drop=0.1,delay=5..20,seed=7". The same seed and the same traffic
///          give the same faults: each asker's answers, and each published type, has a stream of
///          dice of its own, so that the interleaving of threads changes nothing.
/// Threads: a value of its own on any thread.
struct ZRBASE_EXPORT ZrFaultSpec
{
    double drop = 0;      // the message never arrives
    double duplicate = 0; // it arrives twice
    double reorder = 0;   // it arrives after the next one of its stream
    double reject = 0;    // an answer becomes a refusal; nothing else can
    double delayed = 1;   // the share that `delay` holds up
    int delayMinMs = 0;   // delay=MIN..MAX or delay=MS: those with a shorter one overtake
    int delayMaxMs = 0;
    int burst = 0; // messages of one stream arrive this many at a time; 0 for one by one
    quint32 seed = 1;

    bool isHarmless() const;
    /// False with one sentence when the text is no such list; an empty text is harmless.
    static bool parse(const QString &text, ZrFaultSpec *spec, QString *errorText);
};
