#include "ImpostazioniStorico.h"

#include <QStringList>

#include <cmath>

namespace {

QString ChiavePremi(combi::GiocoArchivio gioco, int classe) {
    return QString("VerificaArchivio/Premi/%1/%2").arg(combi::kNomiGiochi[int(gioco)]).arg(classe);
}

}  // namespace

QString ImpostazioniStorico::Archivio() const { return impostazioni_.value("VerificaArchivio/Archivio").toString(); }

void ImpostazioniStorico::SetArchivio(const QString& percorso) {
    impostazioni_.setValue("VerificaArchivio/Archivio", percorso);
}

double ImpostazioniStorico::Posta() const {
    bool ok = false;
    const double posta = impostazioni_.value("VerificaArchivio/Posta", 1.0).toDouble(&ok);
    return ok && std::isfinite(posta) && posta >= 0 ? posta : 1.0;
}

void ImpostazioniStorico::SetPosta(double posta) { impostazioni_.setValue("VerificaArchivio/Posta", posta); }

// Stored as "p=premio" items, only the points that pay: a hand-edited
// settings file with a wrong item loses that item, not the table.
combi::TabellaPremi ImpostazioniStorico::Premi(combi::GiocoArchivio gioco, int classe) const {
    combi::TabellaPremi premi{};
    for (const QString& voce : impostazioni_.value(ChiavePremi(gioco, classe)).toStringList()) {
        const QStringList parti = voce.split('=');
        bool okPunti = false, okPremio = false;
        const int punti = parti.value(0).toInt(&okPunti);
        const double premio = parti.value(1).toDouble(&okPremio);
        if (parti.size() == 2 && okPunti && okPremio && punti >= 0 && punti <= combi::kMaxClasse &&
            std::isfinite(premio) && premio >= 0)
            premi[size_t(punti)] = premio;
    }
    return premi;
}

void ImpostazioniStorico::SetPremi(combi::GiocoArchivio gioco, int classe, const combi::TabellaPremi& premi) {
    QStringList voci;
    for (size_t p = 0; p < premi.size(); ++p)
        if (premi[p] > 0) voci << QString("%1=%2").arg(p).arg(premi[p], 0, 'g', 17);
    impostazioni_.setValue(ChiavePremi(gioco, classe), voci);
}
