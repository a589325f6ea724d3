#pragma once

/// The market depth's texts in the client's language.
///
/// Threads: GUI thread only.
/// Errors:  a language without a file shows the English texts.
class ZrDepthTexts
{
public:
    /// In the language of the default locale; called again it follows a change of that.
    static void install();
};
