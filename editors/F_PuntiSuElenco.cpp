#include "F_PuntiSuElenco.h"

#include <QCheckBox>
#include <QGridLayout>

#include <algorithm>

#include "LetturaNumero.h"
#include "ParametriInserimento.h"
#include "Testo.h"

namespace {

// Eleven boxes to a row: class 10 fits on one line, class 20 on two.
constexpr int kPerRiga = 11;

}  // namespace

F_PuntiSuElenco::F_PuntiSuElenco(const VoceCatalogo& voce, const ContestoEditore& contesto,
                                 QWidget* genitore)
    : F_PuntiSuBase(voce, contesto, genitore) {
    grigliaPunti_ = new QGridLayout;
    grigliaRecupero_ = new QGridLayout;
    ZonaPunti()->addLayout(grigliaPunti_);
    ZonaRecupero()->addLayout(grigliaRecupero_);
}

void F_PuntiSuElenco::CreaCasella(int valore) {
    const int posto = valore - PrimoValore();
    auto crea = [&](const char* nome, QGridLayout* griglia) {
        auto* casella = new QCheckBox(QString::number(valore), this);
        casella->setObjectName(QString("%1_%2").arg(nome).arg(valore));
        griglia->addWidget(casella, posto / kPerRiga, posto % kPerRiga);
        return casella;
    };
    punti_[valore] = crea("ChkPunti", grigliaPunti_);
    recupero_[valore] = crea("ChkRecupero", grigliaRecupero_);
    connect(punti_[valore], &QCheckBox::clicked, this, [this, valore] { ClickPunti(valore); });
}

void F_PuntiSuElenco::LoadChk(bool azzeraPrimo) {
    const int ultimo = UltimoValore();
    const int necessarie = std::max(ultimo, PrimoValore()) + 1;
    if (static_cast<int>(punti_.size()) < necessarie) {
        punti_.resize(necessarie, nullptr);
        recupero_.resize(necessarie, nullptr);
    }
    // The first box always stays, as in every layout of these dialogs.
    ultimo_ = std::max(ultimo, PrimoValore());
    for (int v = PrimoValore(); v < static_cast<int>(punti_.size()); ++v) {
        if (punti_[v] == nullptr && v <= ultimo_) CreaCasella(v);
        if (punti_[v] == nullptr) continue;
        // Relaying out clears every value above the first: their meaning
        // changed with the divisor or the sequence.
        if (v > PrimoValore() || azzeraPrimo) {
            punti_[v]->setChecked(false);
            recupero_[v]->setChecked(false);
        }
        punti_[v]->setVisible(v <= ultimo_);
        recupero_[v]->setVisible(v <= ultimo_);
    }
    AbilitaChkRecupero();
}

QCheckBox* F_PuntiSuElenco::ChkPunti(int valore) const {
    return valore >= PrimoValore() && valore <= ultimo_ ? punti_[valore] : nullptr;
}

QCheckBox* F_PuntiSuElenco::ChkRecupero(int valore) const {
    return valore >= PrimoValore() && valore <= ultimo_ ? recupero_[valore] : nullptr;
}

void F_PuntiSuElenco::AbilitaChkRecupero() {
    const bool pannello = PannelloScelto();
    for (int v = PrimoValore(); v <= ultimo_; ++v) {
        const bool accettato = punti_[v]->isChecked();
        if (!pannello || accettato) recupero_[v]->setChecked(false);
        recupero_[v]->setEnabled(pannello && !accettato);
    }
}

void F_PuntiSuElenco::ClickPunti(int valore) {
    if (!PannelloScelto()) return;
    const bool accettato = punti_[valore]->isChecked();
    if (accettato) recupero_[valore]->setChecked(false);
    recupero_[valore]->setEnabled(!accettato);
}

QString F_PuntiSuElenco::MessaggioCoerenza() const {
    QString messaggio;
    if (Elenco(punti_, PrimoValore(), ultimo_).isEmpty()) messaggio = "Impostare i punti da realizzare";
    if (PannelloScelto() && Elenco(recupero_, PrimoValore(), ultimo_).isEmpty()) {
        messaggio = "Impostare i punti di recupero";
    }
    return messaggio;
}

QString F_PuntiSuElenco::Elenco(const std::vector<QCheckBox*>& caselle, int primo, int ultimo) {
    QStringList spuntati;
    for (int v = primo; v <= ultimo; ++v) {
        if (caselle[v]->isChecked()) spuntati << QString::number(v);
    }
    return spuntati.join('-');
}

void F_PuntiSuElenco::TestiValori(QString& punti, QString& recupero) const {
    punti = Elenco(punti_, PrimoValore(), ultimo_);
    recupero = PannelloScelto() ? Elenco(recupero_, PrimoValore(), ultimo_) : QString();
}

void F_PuntiSuElenco::Spunta(const std::vector<QCheckBox*>& caselle, const std::string& elenco,
                             QStringList& ignorati) {
    for (std::string_view pezzo : combi::Dividi(elenco, "-")) {
        const int v = combi::LeggiInt32(pezzo);
        if (v >= PrimoValore() && v <= ultimo_) {
            caselle[v]->setChecked(true);
        } else if (!ignorati.contains(QString::number(v))) {
            ignorati << QString::number(v);
        }
    }
}

void F_PuntiSuElenco::LeggiValori(const std::string& punti, const std::string& recupero,
                                  const std::string& quadro) {
    // A column written under a higher class may name values that have no
    // box now: they are dropped, and the note tells the user.
    QStringList ignorati;
    Spunta(punti_, punti, ignorati);
    Spunta(recupero_, recupero, ignorati);
    SegnalaValoriIgnorati(ignorati.join(", "));
    SelezionaQuadro(quadro);
}

void F_PuntiSuElenco::RiempiAccettati(const std::string& valori) {
    for (int v : editori::ValoriElenco(valori)) {
        if (ChkPunti(v) == nullptr) editori::ErroreValoreSenzaCasella(v);
        punti_[v]->setChecked(true);
    }
}

void F_PuntiSuElenco::RiempiRecupero(const std::string& valori) {
    for (int v : editori::ValoriElenco(valori)) {
        if (ChkRecupero(v) == nullptr) editori::ErroreValoreSenzaCasella(v);
        recupero_[v]->setChecked(true);
    }
}
