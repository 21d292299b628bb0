#pragma once
// The systems the user opened or saved last, newest first, kept in the
// application's settings for the File menu.

#include <QSettings>
#include <QStringList>

class FileRecenti {
public:
    static constexpr int kMassimo = 8;

    explicit FileRecenti(QSettings& impostazioni) : impostazioni_(impostazioni) {}

    QStringList Elenco() const { return impostazioni_.value(kChiave).toStringList(); }
    // `percorso` first; an earlier place of it goes, the oldest past kMassimo too.
    void Aggiungi(const QString& percorso);
    void Togli(const QString& percorso);

private:
    static constexpr char kChiave[] = "FileRecenti";
    QSettings& impostazioni_;
};
