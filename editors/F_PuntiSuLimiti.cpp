#include "F_PuntiSuLimiti.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <numeric>

#include "Condizione.h"
#include "ConfrontoColonna.h"

std::optional<std::pair<int, int>> LimitiBaricentro(const std::vector<int>& numeri, int classe) {
    const int n = static_cast<int>(numeri.size());
    if (classe < 1 || n < classe) return std::nullopt;
    const int minimi = std::accumulate(numeri.begin(), numeri.begin() + classe, 0);
    const int massimi = std::accumulate(numeri.end() - classe, numeri.end(), 0);
    return std::pair{minimi / classe, massimi / classe};
}

std::optional<std::pair<int, int>> LimitiAmpiezza(const std::vector<int>& numeri, int classe) {
    const auto tabella = combi::PreparaTabellaCandidati(numeri, classe);
    if (tabella.empty()) return std::nullopt;
    const int k = classe;
    const int candidati = static_cast<int>(tabella.size());  // n - k + 1
    const int massimo = tabella[candidati - 1][k - 1] - tabella[0][0];
    if (k == 1) return std::pair{massimo, massimo};
    const int kesimo = tabella[0][k - 1];
    int j = candidati;
    while (j > 1 && tabella[j - 1][0] >= kesimo) --j;
    return std::pair{kesimo - tabella[j - 1][0], massimo};
}

F_PuntiSuLimiti::F_PuntiSuLimiti(const VoceCatalogo& voce, const ContestoEditore& contesto,
                                 QWidget* genitore)
    : F_PuntiSuIntervallo(voce, contesto, genitore) {
    auto* riga = new QHBoxLayout;
    labMin_ = new QLabel(this);
    labMin_->setObjectName("LabMin");
    labMax_ = new QLabel(this);
    labMax_->setObjectName("LabMax");
    for (QLabel* etichetta : {labMin_, labMax_}) {
        etichetta->setFrameShape(QFrame::Panel);
        etichetta->setFrameShadow(QFrame::Sunken);
        etichetta->setMinimumWidth(60);
        etichetta->setAlignment(Qt::AlignCenter);
    }
    riga->addWidget(new QLabel("Min", this));
    riga->addWidget(labMin_);
    riga->addWidget(new QLabel("Max", this));
    riga->addWidget(labMax_);
    riga->addStretch();
    ZonaPropria()->addLayout(riga);
}

void F_PuntiSuLimiti::CalcolaLimiti() {
    const auto& numeri = Contesto().numeriSelezionati;
    const auto limiti = Voce().tipo == combi::kAmpiezza ? LimitiAmpiezza(numeri, Classe())
                                                        : LimitiBaricentro(numeri, Classe());
    labMin_->setText(limiti ? QString::number(limiti->first) : QString());
    labMax_->setText(limiti ? QString::number(limiti->second) : QString());
}
