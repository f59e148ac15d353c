#include "fuzz/FuzzTarget.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

namespace fuzz {

void startApplication()
{
    static int argumentCount = 1;
    static char programName[] = "fuzz";
    static char* arguments[] = {programName, nullptr};
    if (QCoreApplication::instance())
        return;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    // Never destroyed: a fuzzer leaves by _Exit(), and its widgets live as long as it does.
    new QApplication(argumentCount, arguments);
}

QByteArray bytesOf(const std::uint8_t* data, std::size_t size)
{
    return QByteArray(reinterpret_cast<const char*>(data), int(size));
}

QString textOf(const std::uint8_t* data, std::size_t size)
{
    if (size < 2 || data[0] != 0xFF || data[1] != 0xFE)
        return QString::fromUtf8(reinterpret_cast<const char*>(data), int(size));
    QString text;
    for (std::size_t at = 2; at + 1 < size; at += 2)
        text.append(QChar(ushort(data[at] | data[at + 1] << 8)));
    return text;
}

QString writtenFile(const QString& name, const QByteArray& bytes)
{
    static const QTemporaryDir folder(QDir::temp().filePath(QStringLiteral("orderparam-fuzz-XXXXXX")));
    QFile file(folder.filePath(name));
    const bool isOpen = file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered);
    require(isOpen && file.write(bytes) == bytes.size(), "the input's file can be written");
    return file.fileName();
}

void require(bool holds, const char* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

} // namespace fuzz
