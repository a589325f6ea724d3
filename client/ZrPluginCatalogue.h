#pragma once

#include "zrcore/ZrPluginFile.h"

#include <QtCore/QStringList>
#include <QtCore/QVector>

#include <functional>
#include <memory>

class QObject;

/// A plugin file as the workstation lists it.
///
/// Units: times in microseconds.
struct ZrPluginEntry
{
    enum State {
        Found,      // could be loaded
        Loaded,     // its objects can be made
        Refused,    // `reason` and `detail` of the file say why
        SwitchedOff // could be loaded, but is not wanted
    };

    ZrPluginFile file; // with the reason of the state
    State state = Found;
    qint64 readUs = 0; // reading and checking it
    qint64 loadUs = 0; // loading it, its static initialisation and its root object included
};

/// The plugin files of a folder: which were found, which are loaded, why the rest is refused.
///
/// Shape:     scan() reads all files without running their code, loadAll() or load() then load; who makes
///            objects of a plugin does it inside guarded(). A file's bytes have to be vouched for by its own
///            seal or, when a manifest is given, by that alone.
/// Ownership: a loaded plugin stays in the process; makers may outlive the catalogue.
/// Threads:   GUI thread only.
/// Errors:    scan() gives one sentence when folder or manifest can't be used; nothing is found then. A
/// plugin
///            that ended a start while it was loaded or made is switched off by the next scan().
class ZrPluginCatalogue
{
public:
    using Maker = std::function<QObject *()>;
    /// Takes the maker of a plugin that was loaded; such as ZrReferenceHost::registerPlugin.
    using Register = std::function<void(const QString &pluginId, Maker maker)>;

    struct Options
    {
        QString folder;        // plugin files; empty for none
        QString manifest;      // file of SHA-256 hashes as sha256sum writes it; empty: switched off
        QString stateFolder;   // where marks and switches lie; made when missing; empty: nothing is kept
        bool takeMarks = true; // false only looks: who ended the last start is left for the next one to find
    };

    explicit ZrPluginCatalogue(Register registerMaker);
    ~ZrPluginCatalogue();

    /// Empty, or one sentence. Entries are in the order of the file names.
    QString scan(const Options &options);
    /// Loads all that were found and are not switched off. How many are loaded now.
    int loadAll();
    /// Loads one, switched off or not; true when it is loaded now.
    bool load(const QString &pluginId);

    const QVector<ZrPluginEntry> &entries() const;
    QStringList loadedIds() const;
    bool isLoaded(const QString &pluginId) const;
    /// Those that ended a start since the last one that went well; scan() has switched them off.
    QStringList endedLastStart() const;

    /// Whether the next start leaves the plugin out; a loaded one stays as it is. False when it can't be
    /// kept.
    bool setSwitchedOff(const QString &pluginId, bool off);
    bool isSwitchedOff(const QString &pluginId) const;

    /// Runs `work`, which makes or initialises an object of the plugin, with a mark on disk that names the
    /// plugin while it runs: should the process end inside, the next start knows whom to leave out.
    void guarded(const QString &pluginId, const std::function<void()> &work);

private:
    Q_DISABLE_COPY(ZrPluginCatalogue)
    class Private;
    const std::unique_ptr<Private> d;
};
