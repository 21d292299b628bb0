#pragma once
// The host's main window: the control fills it; the window answers the
// control's two events and keeps its settings.

#include <QMainWindow>
#include <QSettings>

#include <memory>

#include "ArchivioProprieta.h"
#include "ServizioDialoghi.h"

class CombiFiltroA;

class FinestraPrincipale : public QMainWindow {
    Q_OBJECT
public:
    // `dialoghi` nullptr: the real message boxes and file dialogs.
    explicit FinestraPrincipale(std::unique_ptr<ServizioDialoghi> dialoghi = nullptr);
    ~FinestraPrincipale() override;

    CombiFiltroA& Controllo() const { return *controllo_; }

protected:
    void closeEvent(QCloseEvent* evento) override;

private:
    void CostruisciMenu();
    void AggiornaComandi();
    void AggiornaTitolo();
    void RiempiRecenti();
    void ApriRecente(const QString& percorso);
    void ChiediProcessi();

    QSettings impostazioni_;
    QList<QAction*> comandiFile_, comandiSviluppo_;
    QAction* interrompi_ = nullptr;
    QMenu* recenti_ = nullptr;

    std::unique_ptr<ArchivioProprieta> archivio_;
    std::unique_ptr<ServizioDialoghi> dialoghi_;
    std::unique_ptr<class FabbricaEditori> editori_;
    CombiFiltroA* controllo_ = nullptr;
    class SviluppoParallelo* parallelo_ = nullptr;
};

// The folder proposed for systems and columns files (~/CombiFiltro/Sistemi),
// created when missing.
QString CartellaSistemi();
