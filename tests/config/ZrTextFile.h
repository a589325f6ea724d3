#pragma once

#include <QtCore/QFile>
#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

/// Writes files into a folder that goes away with the object.
class ZrTextFile
{
public:
    QString write(const QByteArray &content, const QString &name = QStringLiteral("columns.xml"))
    {
        const QString path = m_folder.filePath(name);
        QFile file(path);
        if (file.open(QIODevice::WriteOnly))
            file.write(content);
        return path;
    }
    QString missing() const { return m_folder.filePath(QStringLiteral("missing.xml")); }

private:
    QTemporaryDir m_folder;
};
