#include "docs/Documents.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>

namespace documents {

namespace {

const QLatin1String kFence("```");

QString root()
{
    return QStringLiteral(ORDERPARAM_SOURCES "/");
}

QStringList captured(const QString& text, const QString& pattern)
{
    const QRegularExpression expression(pattern, QRegularExpression::MultilineOption);
    QStringList found;
    for (auto match = expression.globalMatch(text); match.hasNext();)
        found << match.next().captured(1);
    return found;
}

/// Calls @p take with each line and whether it is code; the fences themselves are left out.
template <class Take>
void readLines(const QString& markdown, Take take)
{
    bool isFenced = false;
    for (const QString& line : markdown.split(QLatin1Char('\n'))) {
        if (line.startsWith(kFence))
            isFenced = !isFenced;
        else
            take(line, isFenced || line.startsWith(QLatin1String("    ")));
    }
}

QString anchorOf(const QString& heading)
{
    QString anchor;
    for (const QChar character : heading.toLower()) {
        if (character == QLatin1Char(' '))
            anchor += QLatin1Char('-');
        else if (character.isLetterOrNumber() || character == QLatin1Char('-') || character == QLatin1Char('_'))
            anchor += character;
    }
    return anchor;
}

QStringList cellsOf(const QString& row)
{
    QStringList cells = row.split(QLatin1Char('|')).mid(1);
    cells.removeLast();
    for (QString& cell : cells)
        cell = cell.remove(QLatin1Char('`')).trimmed();
    return cells;
}

} // namespace

QStringList all()
{
    QStringList paths{QStringLiteral("README.md"), QStringLiteral("README.zh_CN.md"), QStringLiteral("CONTRIBUTING.md"),
                      QStringLiteral("CHANGELOG.md")};
    return paths + files(QStringLiteral("docs"), {QStringLiteral("*.md")});
}

QString text(const QString& path)
{
    QFile file(root() + path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList files(const QString& folder, const QStringList& wildcards)
{
    QStringList paths;
    for (QDirIterator at(root() + folder, wildcards, QDir::Files, QDirIterator::Subdirectories); at.hasNext();)
        paths << QDir(root()).relativeFilePath(at.next());
    paths.sort();
    return paths;
}

bool exists(const QString& path)
{
    return QFileInfo::exists(root() + path);
}

QString prose(const QString& markdown)
{
    QString text;
    readLines(markdown, [&text](const QString& line, bool isCode) {
        if (!isCode)
            text += line + QLatin1Char('\n');
    });
    return text;
}

QStringList codeBlocks(const QString& markdown, const QString& language)
{
    QStringList blocks;
    bool isWanted = false;
    bool isFenced = false;
    for (const QString& line : markdown.split(QLatin1Char('\n'))) {
        if (line.startsWith(kFence)) {
            isFenced = !isFenced;
            isWanted = isFenced && (language.isEmpty() || line.mid(kFence.size()) == language);
            if (isWanted)
                blocks << QString();
        } else if (isWanted) {
            blocks.last() += line + QLatin1Char('\n');
        }
    }
    return blocks;
}

QStringList codeLines(const QString& markdown)
{
    QStringList lines;
    readLines(markdown, [&lines](const QString& line, bool isCode) {
        if (isCode)
            lines << line.trimmed();
    });
    return lines;
}

QStringList headings(const QString& markdown)
{
    return captured(prose(markdown), QStringLiteral("^(#+ .*)$"));
}

QStringList anchors(const QString& markdown)
{
    QHash<QString, int> seen;
    QStringList found;
    for (const QString& heading : headings(markdown)) {
        const QString anchor = anchorOf(heading.section(QLatin1Char(' '), 1));
        const int times = seen[anchor]++;
        found << (times == 0 ? anchor : QStringLiteral("%1-%2").arg(anchor).arg(times));
    }
    return found;
}

QStringList targets(const QString& markdown)
{
    return captured(prose(markdown), QStringLiteral("\\]\\(([^)\\s]*)\\)"));
}

QStringList quoted(const QString& markdown)
{
    return captured(prose(markdown), QStringLiteral("`([^`\\n]+)`"));
}

QList<QStringList> tableRows(const QString& markdown, const QString& heading)
{
    QList<QStringList> rows;
    bool isUnder = false;
    bool isHead = true;
    for (const QString& line : markdown.split(QLatin1Char('\n'))) {
        if (line.startsWith(QLatin1Char('#')))
            isUnder = line == heading;
        if (!isUnder || !line.startsWith(QLatin1Char('|'))) {
            isHead = true;
            continue;
        }
        if (line.startsWith(QLatin1String("|---")))
            isHead = false;
        else if (!isHead)
            rows << cellsOf(line);
    }
    return rows;
}

} // namespace documents
