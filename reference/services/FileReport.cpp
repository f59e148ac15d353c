#include "reference/services/FileReport.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSet>

#include <algorithm>

namespace reference {

namespace {

constexpr int kMostNotesSaid = 5;
constexpr int kLongestText = 80;

/// By path.
QHash<QString, QSet<QString>>& errorsSaid()
{
    static QHash<QString, QSet<QString>> errors;
    return errors;
}

void sayNotes(const QStringList& notes)
{
    for (const QString& note : notes.mid(0, kMostNotesSaid))
        qInfo("%s", qUtf8Printable(note));
    if (notes.size() > kMostNotesSaid)
        qInfo("... and %d more", notes.size() - kMostNotesSaid);
}

} // namespace

void sayReport(const QString& path, const LoadReport& report)
{
    sayNotes(report.notes);
    if (report.isGood()) {
        errorsSaid().remove(path);
        return;
    }
    QSet<QString>& said = errorsSaid()[path];
    if (said.contains(report.error))
        return;
    said.insert(report.error);
    qWarning("%s", qUtf8Printable(report.error));
}

void forgetReports()
{
    errorsSaid().clear();
}

QString placed(const QString& path, int line, const QString& what)
{
    const QString file = QDir::toNativeSeparators(path);
    return line > 0 ? QStringLiteral("%1:%2: %3").arg(file, QString::number(line), what)
                    : QStringLiteral("%1: %2").arg(file, what);
}

QString quoted(const QString& text)
{
    QString shown = text.left(kLongestText);
    for (QChar& character : shown) {
        if (!character.isPrint())
            character = QChar::ReplacementCharacter;
    }
    return QLatin1Char('"') + shown + QLatin1String(text.size() > kLongestText ? "...\"" : "\"");
}

int lineAt(const QByteArray& bytes, int offset)
{
    const auto end = bytes.begin() + std::clamp(offset, 0, bytes.size());
    return 1 + static_cast<int>(std::count(bytes.begin(), end, '\n'));
}

QByteArray readWhole(const QString& path, LoadReport& report, qint64 largest)
{
    // A folder opens like a file on some systems, a pipe waits for its writer, a device never ends.
    const QFileInfo info(path);
    if (info.exists() && !info.isFile()) {
        report.error = placed(path, 0, QStringLiteral("is no file"));
        return {};
    }
    if (info.size() > largest) {
        report.error = placed(path, 0, QStringLiteral("is too large"));
        return {};
    }
    QFile file(path);
    QByteArray bytes;
    if (file.open(QIODevice::ReadOnly))
        bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        report.error = placed(path, 0, QStringLiteral("cannot be read: %1").arg(file.errorString()));
    return bytes;
}

} // namespace reference
