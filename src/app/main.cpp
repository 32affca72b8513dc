// QEL Setup: the authoring tool of a live multimedia performance.
#include <QApplication>
#include "mainwindow/FormInitial.h"
#include "support/Platform.h"

int main(int argc, char** argv)
{
    ConfigureMemoryAllocator();
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("QEL Setup"));
    QApplication::setOrganizationName(QStringLiteral("QEL"));
    QApplication::setApplicationVersion(QStringLiteral("4.0"));

    FormInitial window;
    window.Form_Load();
    window.show();
    return app.exec();
}
