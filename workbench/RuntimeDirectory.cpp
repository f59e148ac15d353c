#include "workbench/RuntimeDirectory.h"

#include <QDir>

#include <sys/stat.h>
#include <unistd.h>

namespace workbench {

namespace {

constexpr const char* kVariable = "XDG_RUNTIME_DIR";
constexpr mode_t kPrivate = S_IRWXU;

/// A directory of that name may have been placed there by somebody else.
bool isPrivateDirectory(const QByteArray& path)
{
    struct stat info = {};
    return lstat(path.constData(), &info) == 0 && S_ISDIR(info.st_mode) && info.st_uid == geteuid()
        && (info.st_mode & ACCESSPERMS) == kPrivate;
}

} // namespace

void ensureRuntimeDirectory()
{
    if (!qEnvironmentVariableIsEmpty(kVariable))
        return;
    const QString name = QStringLiteral("orderparam-runtime-%1").arg(geteuid());
    const QByteArray path = QFile::encodeName(QDir(QDir::tempPath()).filePath(name));
    mkdir(path.constData(), kPrivate);
    if (isPrivateDirectory(path))
        qputenv(kVariable, path);
}

} // namespace workbench
