#include <QCoreApplication>
#include <QString>
#include <QTimer>

// A leak below frames of Qt's event loop, where a suppression that names too much would hide it.
int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    QTimer::singleShot(0, &application, [&application] {
        [[maybe_unused]] QString* volatile lost = new QString(QStringLiteral("lost"));
        lost = nullptr;
        application.quit();
    });
    return QCoreApplication::exec();
}
