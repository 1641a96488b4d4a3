#include "shell/application.h"

#include "version.h"
#include "windows/assistive.h"
#include "windows/own_style.h"

#include <QApplication>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace pixano {
namespace {

QIcon ProgramIcon()
{
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256})
        icon.addFile(QString(":/pixano/icons/pixano-%1.png").arg(size));
    return icon;
}

}  // namespace

void PrepareApplication(QApplication& application)
{
    QApplication::setApplicationName("pixano");
    QApplication::setApplicationVersion(Version);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setWindowIcon(ProgramIcon());
    QApplication::setStyle(new OwnStyle);
    TellAssistiveTools();
    // Dialogs of the desktop would speak its language, whatever it is.
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
    auto* const italian = new QTranslator(&application);
    if (italian->load("qtbase_it", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(italian);
}

}  // namespace pixano
