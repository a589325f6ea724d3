#pragma once

#include <QtCore/QString>

/// What is wrong in a strategy description, one log line for each fault: file, key, what is wanted.
///
/// Shape:     at most mostLines lines; the rest is counted and told in one line at the end. Texts from the
///            file are cut and kept on their line.
/// Threads:   any.
class ZrStrategyFaults
{
public:
    static constexpr int mostLines = 50;

    explicit ZrStrategyFaults(const QString &path);
    ~ZrStrategyFaults();

    /// The whole file can't be used.
    void refuse(const QString &what);
    /// The same, for what stands under a key.
    void refuse(const QString &key, const QString &what);
    /// What stands under the key is left out, the rest is used.
    void skip(const QString &key, const QString &what);
    bool isRefused() const { return m_isRefused; }

    /// A text from the file as part of a line.
    static QString quoted(const QString &text);

private:
    Q_DISABLE_COPY(ZrStrategyFaults)
    void tell(const QString &line);

    const QString m_path;
    bool m_isRefused = false;
    int m_lines = 0;
};
