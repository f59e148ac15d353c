#pragma once

#include <QFile>
#include <QString>

/// Writes the bytes to the file, in place of what it held; answers whether all of them went in.
inline bool writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(bytes) == bytes.size();
}
