#pragma once

/// Why a plugin file is not in use. What says more, such as the symbol that is missing, stands beside it as a
/// text.
enum class ZrPluginReason {
    None,
    Unreadable,     // the file can't be read, or is larger than any plugin
    NotAPlugin,     // no shared object, or one without a plugin in it
    Damaged,        // its bytes are not those that were built
    Unsealed,       // neither a seal nor a manifest vouches for its bytes
    OtherBuild,     // made for another machine or toolkit
    WrongInterface, // a plugin, but not of this client
    NoId,           // its meta data give no usable ID
    DoubleId,       // another file has its ID
    NotInManifest,  // the manifest is switched on and holds no such file
    MissingSymbol,  // needs a function or variable that nobody offers
    MissingLibrary, // needs a library that is not there
    LoadFailed,     // the system's loader refused it for another reason
    EndedLastStart, // a start ended while it was loaded or made
    SwitchedOff     // by the user
};
