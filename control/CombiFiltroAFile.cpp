// The system file (".sic") and the columns file (".col").
//
// Both files are written by the engine through a temporary file renamed over
// the target, so the old file is never deleted first: a failed save leaves the
// previous file whole instead of a partial one.

#include "CombiFiltroA.h"

#include "ChiaviComandi.h"

#include <QAction>
#include <QComboBox>
#include <QListWidget>

#include "DecodificaCondizioni.h"
#include "FileColonne.h"
#include "ScritturaColonne.h"
#include "FileSistema.h"
#include "GrigliaCondizioni.h"
#include "GrigliaNumeri.h"
#include "LetturaNumero.h"
#include "ScritturaCondizioni.h"
#include "SegnalazioneErrori.h"
#include "ServizioDialoghi.h"
#include "TestiGrigliaQt.h"
#include "UtilitaSchermo.h"
#include "Percorsi.h"

namespace {

const QString kFiltroSistemi = "Sistemi condizionati (*.sic)|*.sic";
const QString kFiltroColonne = "File colonne (*.col)|*.col";

}  // namespace

void CombiFiltroA::Salva(QString& fileName) {
    EseguiProtetta(*dialoghi_, "CombiFiltro.Salva", [&] {
        if (fileName.isEmpty()) {
            const QString scelto = DialogoSalva(*dialoghi_, dirSistemi_, "Salva sistema", kFiltroSistemi,
                                                fileSistema_, ".sic");
            ImpostaFileSistema(scelto);
            fileName = scelto;
        }
        if (fileName.isEmpty()) return;

        combi::ScriviFileSistema(fileName.toStdString(), SistemaCorrente());
        ImpostaModificato(false);
        emit Salvato("Sistema salvato in " + fileName);
    });
}

combi::FileSistema CombiFiltroA::SistemaCorrente() const {
    combi::FileSistema sistema;
    for (int n = 1; n <= combi::kMaxNumero; ++n) {
        sistema.intestazione.numeri[n] = numeri_->Selezionato(n) ? combi::kVero : combi::kFalso;
    }
    sistema.intestazione.classe = combi::LeggiInt16(cmbClasse_->currentText().toStdString());
    sistema.intestazione.riduzione = combi::LeggiInt16(cmbRid_->currentText().toStdString());
    combi::SistemaDecodificato decodificato = combi::LeggiCondizioni(LeggiTestiGriglia(*griglia_, *lbQuadroRec_));
    sistema.condizioni = std::move(decodificato.condizioni);
    sistema.quadri = decodificato.quadri;
    sistema.quadri[0] = combi::QuadroRecupero{};  // belongs to no panel
    return sistema;
}

void CombiFiltroA::Apri() {
    QString cartella = QString::fromStdString(combi::CartellaDelFile(fileSistema_.toStdString()));
    if (!combi::IsCartella(cartella.toStdString())) cartella = dirSistemi_;
    const QString scelto = DialogoApri(*dialoghi_, cartella, "Apri sistema", kFiltroSistemi, fileSistema_, ".sic");
    if (scelto.isEmpty()) return;
    CaricaSistema(scelto);
}

bool CombiFiltroA::CaricaSistema(const QString& percorso) {
    return EseguiProtetta(*dialoghi_, "CombiFiltro.Apri", [&] { CaricaSistemaNonProtetta(percorso); });
}

void CombiFiltroA::CaricaSistemaNonProtetta(const QString& percorso) {
    ImpostaFileSistema(percorso);
    const combi::FileSistema sistema = combi::LeggiFileSistema(percorso.toStdString());
    for (int n = 1; n <= combi::kMaxNumero; ++n) numeri_->ImpostaNumero(n, sistema.intestazione.numeri[n] != 0);
    SelezionaVoceCombo(QString::number(sistema.intestazione.classe), cmbClasse_);
    SelezionaVoceCombo(QString::number(sistema.intestazione.riduzione), cmbRid_);
    LayOutGrid();
    RiempiGriglia(*griglia_, *lbQuadroRec_, combi::TestiDaSistema(sistema.condizioni, sistema.quadri));
    SetColonnaGrid(1);
    VoceMenu(chiavi::kSalva)->setEnabled(true);
    ImpostaModificato(false);
}

void CombiFiltroA::SalvaFileColonne() {
    EseguiProtetta(*dialoghi_, "CombiFiltro.SalvaFileColonne", [&] {
        QString nome = QString::fromStdString(combi::NomeSenzaEstensione(fileSistema_.toStdString()));
        if (nome.isEmpty()) nome = "NuovoSistema";
        const QString scelto =
            DialogoSalva(*dialoghi_, dirSistemi_, "Salva colonne", kFiltroColonne, nome + ".col", ".col");
        if (scelto.trimmed().isEmpty()) return;
        combi::ScritturaColonne file(scelto.toStdString());
        file.Accoda(colonne_.Colonne());
        file.Concludi();
        emit Salvato(TestoContatore(double(colonne_.Quante())) + " colonne salvate in " + scelto);
    });
}
