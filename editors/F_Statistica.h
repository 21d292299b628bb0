#pragma once
// The "STATISTICA" preview of an editor: how the integral columns of the
// picked numbers in the current class spread over the values of the
// condition being edited (as it stands in the dialog), as a table of counts
// and shares and as a bar chart. The count runs in slices on the event loop,
// so the window and the editor stay usable and closing the preview stops it.

#include <QDialog>

#include <memory>

#include "CatalogoEditori.h"
#include "Condizione.h"
#include "ContestoEditore.h"

class DistribuzioneMisura;
class GraficoBarre;
class QLabel;
class QTableWidget;

class F_Statistica : public QDialog {
    Q_OBJECT
public:
    explicit F_Statistica(QWidget* genitore);
    ~F_Statistica() override;

    // Starts the count. A failure (too few numbers, anything thrown) is
    // reported through the context's message boxes and gives false.
    bool Avvia(const VoceCatalogo& voce, const ContestoEditore& contesto, const combi::Condizione& condizione);
    bool Finita() const;
    const DistribuzioneMisura* Distribuzione() const { return distribuzione_.get(); }

    // Columns measured per slice between two turns of the event loop.
    static constexpr uint64_t kColonnePerPasso = 20000;

signals:
    void Completata();

private:
    void Passo();
    void Mostra();

    std::unique_ptr<DistribuzioneMisura> distribuzione_;
    QLabel* labIntestazione_ = nullptr;
    QLabel* labAvanzamento_ = nullptr;
    QTableWidget* tabella_ = nullptr;
    GraficoBarre* grafico_ = nullptr;
};

// Game code handed with the statistics code: 1 "Lotto" .. 4 "SuperEnalotto".
QString NomeGioco(int codiceGioco);
