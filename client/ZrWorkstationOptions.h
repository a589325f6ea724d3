#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

/// What the workstation's command line says.
///
/// Shape:  a value; parse() reads a whole command line, the program's name first.
/// Errors: parse() gives false and one sentence that names the flag and what it wants.
struct ZrWorkstationOptions
{
    bool headless = false;
    bool help = false;
    double seconds = -1; // negative: until the window closes, or headless until the feed ends
    double speed = 1;    // 0: as fast as the grid takes it
    int rate = 1000;     // messages a second of the simulator
    quint32 seed = 1;
    int maxRows = 100000; // the grid's row limit
    QString shotsFolder;
    QString reportFile;
    QString feed;       // empty: the simulator
    QString recordFile; // description of the recording to write
    QString skin;
    QString faults;
    QStringList open;         // IDs of the plugins to open; empty: the blotter twice
    QString language;         // empty: that of the locale
    QString pluginFolder;     // empty: that of the program
    QString pluginManifest;   // empty: none is asked for
    bool noPlugins = false;   // loads none, wherever they lie
    bool listPlugins = false; // tells what lies in the folder and ends

    static bool parse(const QStringList &arguments, ZrWorkstationOptions *options, QString *error);
    static QString helpText();
};
