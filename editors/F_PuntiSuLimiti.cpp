#include "F_PuntiSuLimiti.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <numeric>

#include "Condizione.h"
#include "ConfrontoColonna.h"
#include "ServizioDialoghi.h"

std::pair<int, int> LimitiBaricentro(const TabellaCandidati& tabella, int classe) {
    // The first candidate holds the k smallest numbers, the last the k largest.
    const int minimi = std::accumulate(tabella.front().begin(), tabella.front().end(), 0);
    const int massimi = std::accumulate(tabella.back().begin(), tabella.back().end(), 0);
    return {minimi / classe, massimi / classe};
}

std::pair<int, int> LimitiAmpiezza(const TabellaCandidati& tabella, int classe) {
    const int k = classe;
    const int candidati = static_cast<int>(tabella.size());  // n - k + 1
    const int massimo = tabella[candidati - 1][k - 1] - tabella[0][0];
    if (k == 1) return {massimo, massimo};
    const int kesimo = tabella[0][k - 1];
    int j = candidati;
    while (j > 1 && tabella[j - 1][0] >= kesimo) --j;
    return {kesimo - tabella[j - 1][0], massimo};
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
    labMin_->clear();
    labMax_->clear();
    const auto& numeri = Contesto().numeriSelezionati;
    const int k = Classe();
    if (static_cast<int>(numeri.size()) < k) return;
    // A class of 0 (no entry selected in the class list) is told to the user.
    const TabellaCandidati tabella = combi::PreparaTabellaCandidati(numeri, k, [this](const std::string& testo) {
        if (Contesto().dialoghi != nullptr) Contesto().dialoghi->Critico(QString(), QString::fromStdString(testo));
    });
    if (tabella.empty()) return;
    const auto [minimo, massimo] =
        Voce().tipo == combi::kAmpiezza ? LimitiAmpiezza(tabella, k) : LimitiBaricentro(tabella, k);
    labMin_->setText(QString::number(minimo));
    labMax_->setText(QString::number(massimo));
}
