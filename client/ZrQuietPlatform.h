#pragma once

/// Keeps a window without a display quiet.
///
/// The offscreen platform warns of each size hint that it cannot pass on to a window manager, of each window
/// that it cannot raise and of each popup that it cannot give the keyboard. Nobody can act on that, and it
/// would hide what a run has to say. All other lines pass.
class ZrQuietPlatform
{
public:
    static void install();
};
