#include "screens/ScreenFactory.h"
#include "shell/ModuleManager.h"
#include "world/GameManager.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    // Qt looks for its plug-ins beside the game too
    QCoreApplication::addLibraryPath("./");
    GameManager::instance();
    ModuleManager::instance().initialize(ScreenFactory::builders());
    return application.exec();
}
