// The configuration file: what is right is taken whole, what is wrong leaves what was there.
#include "fuzz/FuzzTarget.h"
#include "reference/services/ConfigurationFile.h"

#include <algorithm>

namespace {

using reference::Configuration;
using reference::LoadReport;

const QString kPath = QStringLiteral("orderparam.ini");

bool isSame(const Configuration& one, const Configuration& other)
{
    return one.clientMode == other.clientMode && one.modules == other.modules;
}

/// "file: what" or "file:line: what", the line being one of the file's.
void checkPlaced(const QByteArray& file, const QString& said)
{
    fuzz::require(said.startsWith(kPath + QLatin1Char(':')), "what is said names the file");
    const QString behind = said.mid(kPath.size() + 1);
    bool isNumber = false;
    const int line = behind.left(behind.indexOf(QLatin1Char(':'))).toInt(&isNumber);
    fuzz::require(!isNumber || (line >= 1 && line <= 1 + file.count('\n')), "what is said names a line of the file");
    fuzz::require(isNumber || behind.startsWith(QLatin1Char(' ')), "what is said is placed");
}

bool isPlain(const std::string& name)
{
    return std::all_of(name.begin(), name.end(), [](char character) {
        return (character >= 'a' && character <= 'z') || character == '/' || character == '_';
    });
}

void checkModules(const Configuration& configuration)
{
    for (const std::string& name : configuration.modules) {
        fuzz::require(std::count(name.begin(), name.end(), '/') == 1, "a module has one group");
        fuzz::require(name.front() != '/' && name.back() != '/', "a module and its group have names");
    }
}

/// The same configuration, written in the plainest way, reads back.
void checkReadBack(const Configuration& configuration)
{
    QByteArray file = "[client]\nmode=" + QByteArray::number(configuration.clientMode) + "\n[modules]\non=";
    for (const std::string& name : configuration.modules) {
        if (!isPlain(name))
            return;
        file += QByteArray::fromStdString(name) + ", ";
    }
    Configuration read;
    const LoadReport report = reference::readConfiguration(kPath, file + '\n', read);
    fuzz::require(report.isGood() && report.notes.isEmpty(), "a plain file is right");
    fuzz::require(isSame(read, configuration), "a plain file says the same");
}

void check(const QByteArray& file)
{
    const Configuration last{42, {"kept/on"}};
    Configuration configuration = last;
    const LoadReport report = reference::readConfiguration(kPath, file, configuration);
    for (const QString& note : report.notes)
        checkPlaced(file, note);
    if (!report.isGood()) {
        checkPlaced(file, report.error);
        fuzz::require(isSame(configuration, last), "the last good configuration stays");
        return;
    }
    checkModules(configuration);
    Configuration again;
    fuzz::require(reference::readConfiguration(kPath, file, again).isGood(), "a right file stays right");
    fuzz::require(isSame(again, configuration), "a file says the same twice, whatever was there before");
    checkReadBack(configuration);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray file = fuzz::bytesOf(data, size);
    Configuration configuration;
    if (size > fuzz::kLongestChecked)
        reference::readConfiguration(kPath, file, configuration);
    else
        check(file);
    return 0;
}
