// CombiFiltro: the host application of the control.
//   combifiltro                    the main window
//   combifiltro --screenshot FILE  develops an example system and saves the
//                                  window as a PNG (also COMBIFILTRO_SCREENSHOT=FILE)

#include <QApplication>
#include <QCommandLineParser>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include "FinestraPrincipale.h"
#include "Fotografia.h"

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName("CombiFiltro");
    QApplication::setOrganizationName("CombiFiltro");
    // Qt's own dialogs (file dialogs, print preview) in Italian when its
    // translations are installed.
    QTranslator traduzioneQt;
    if (traduzioneQt.load(QLocale(QLocale::Italian), "qtbase", "_",
                          QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QApplication::installTranslator(&traduzioneQt);
    }

    QCommandLineParser argomenti;
    argomenti.addHelpOption();
    argomenti.addOption({"screenshot", "Sviluppa un sistema di esempio e salva la finestra in FILE (PNG).", "FILE"});
    argomenti.process(app);
    QString fotografia = argomenti.value("screenshot");
    if (fotografia.isEmpty()) fotografia = qEnvironmentVariable("COMBIFILTRO_SCREENSHOT");
    if (!fotografia.isEmpty()) return EseguiFotografia(fotografia);

    FinestraPrincipale finestra;
    finestra.show();
    return app.exec();
}
