#pragma once
// What "Verifica su archivio" keeps between sessions, in the host's
// QSettings under "VerificaArchivio/": the archive's path, the stake per
// column and one prize table per game and class (a column's prize for p
// points depends on how many numbers it plays).

#include <QSettings>
#include <QString>

#include "ArchivioEstrazioni.h"
#include "BilancioStorico.h"

class ImpostazioniStorico {
public:
    // `impostazioni` must outlive this object.
    explicit ImpostazioniStorico(QSettings& impostazioni) : impostazioni_(impostazioni) {}

    QString Archivio() const;
    void SetArchivio(const QString& percorso);
    double Posta() const;  // 1 when never set
    void SetPosta(double posta);
    // Zeros when the table was never edited for this game and class.
    combi::TabellaPremi Premi(combi::GiocoArchivio gioco, int classe) const;
    void SetPremi(combi::GiocoArchivio gioco, int classe, const combi::TabellaPremi& premi);

private:
    QSettings& impostazioni_;
};
