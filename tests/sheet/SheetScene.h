#pragma once

#include "FormScene.h"
#include "ZrMessageBox.h"

#include <QtCore/QFile>
#include <QtCore/QTimer>
#include <QtWidgets/QLabel>
#include <QtWidgets/QTextEdit>

/// Answers the next message box, whichever it is, and keeps what it said.
///
/// Made before the call that shows the box; the call returns when the box was answered.
class MessageAnswer
{
public:
    MessageAnswer()
    {
        m_watch.setInterval(0);
        QObject::connect(&m_watch, &QTimer::timeout, &m_watch, [this] { answer(); });
        m_watch.start();
    }
    bool wasAsked() const { return m_count > 0; }
    int count() const { return m_count; }
    QString title() const { return m_title; }
    QString text() const { return m_text; }

private:
    Q_DISABLE_COPY(MessageAnswer)
    void answer()
    {
        auto *const box = qobject_cast<ZrMessageBox *>(QApplication::activeModalWidget());
        if (!box)
            return;
        ++m_count;
        m_title = box->findChild<QLabel *>(QStringLiteral("label_title"))->text();
        m_text = box->findChild<QTextEdit *>()->toPlainText();
        box->done(1);
    }

    QTimer m_watch;
    int m_count = 0;
    QString m_title;
    QString m_text;
};

namespace sheet {

/// Writes a description into the folder and gives its path.
inline QString write(const QTemporaryDir &folder, const QByteArray &content)
{
    const QString path = folder.filePath(QStringLiteral("sheet.json"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("the test's file can't be written");
    return path;
}

} // namespace sheet
