#pragma once
// The "STATISTICA" preview of an editor: how the integral columns of the
// picked numbers in the current class spread over the values of the
// condition being edited (as it stands in the dialog), as a table of counts
// and shares and as a bar chart, with the columns the condition as edited
// would accept. The count is exact whatever the size of the system (it never
// visits the columns one by one) and runs off the user-interface thread with
// a progress bar and "Annulla"; closing the preview stops it too.

#include <QDialog>

#include "CatalogoEditori.h"
#include "Condizione.h"
#include "ContestoEditore.h"
#include "DistribuzioneMisura.h"

class ConteggioAnteprima;
class GraficoBarre;
class QLabel;
class QProgressBar;
class QPushButton;
class QTableWidget;

class F_Statistica : public QDialog {
    Q_OBJECT
public:
    explicit F_Statistica(QWidget* genitore);
    ~F_Statistica() override;

    // Starts the count. Missing input (too few numbers) is reported through
    // the context's message boxes and gives false.
    bool Avvia(const VoceCatalogo& voce, const ContestoEditore& contesto, const combi::Condizione& condizione);
    bool Finita() const;
    // The columns per value once the count has finished.
    const combi::Distribuzione& Distribuzione() const { return distribuzione_; }
    // "Annulla": stops the count; the preview says so and stays open.
    void Annulla();
    // The hand-over of "STATISTICA": the editor's statistics code and the
    // game code (1 "Lotto" .. 4 "SuperEnalotto"); not shown to the user.
    int CodiceStatistica() const { return codiceStatistica_; }
    int CodiceGioco() const { return codiceGioco_; }

signals:
    void Completata();
    void Annullata();

private:
    void CostruisciFinestra();
    void Avanzamento(int fatti, int totale);
    void Mostra();
    void MostraTabella();
    void MostraAccettate();
    void Fine(const QString& testo);

    combi::Condizione condizione_;
    ConteggioAnteprima* conteggio_ = nullptr;
    combi::Distribuzione distribuzione_;
    QString misura_;
    uint64_t totale_ = 0;
    int codiceStatistica_ = 0;
    int codiceGioco_ = 0;
    QLabel* labIntestazione_ = nullptr;
    QLabel* labAvanzamento_ = nullptr;
    QProgressBar* barra_ = nullptr;
    QPushButton* annulla_ = nullptr;
    QTableWidget* tabella_ = nullptr;
    GraficoBarre* grafico_ = nullptr;
    QLabel* labValore_ = nullptr;
    QLabel* labAccettate_ = nullptr;
};

// Game code handed with the statistics code: 1 "Lotto" .. 4 "SuperEnalotto".
QString NomeGioco(int codiceGioco);

// What the preview measures, in plain words: "Peso", "Vortice inverso",
// "Resto a 5", "Numero in posizione 2", ...
QString NomeMisura(const combi::Condizione& condizione);
