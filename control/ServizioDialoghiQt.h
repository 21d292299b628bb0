#pragma once
// The real dialogs: QMessageBox and QFileDialog, owned by the given window.

#include <QPointer>
#include <QStringList>

#include "ServizioDialoghi.h"

class ServizioDialoghiQt : public ServizioDialoghi {
public:
    explicit ServizioDialoghiQt(QWidget* proprietario = nullptr) : proprietario_(proprietario) {}
    void ImpostaProprietario(QWidget* proprietario) { proprietario_ = proprietario; }

    void Informazione(const QString& titolo, const QString& testo) override;
    void Esclamazione(const QString& titolo, const QString& testo) override;
    void Critico(const QString& titolo, const QString& testo) override;
    bool Domanda(const QString& titolo, const QString& testo) override;
    Salvataggio ChiediSalvataggio(const QString& titolo, const QString& testo) override;
    QString FileDaSalvare(const QString& cartella, const QString& titolo, const QString& filtro,
                          const QString& nome, const QString& estensione) override;
    QString FileDaAprire(const QString& cartella, const QString& titolo, const QString& filtro,
                         const QString& nome, const QString& estensione) override;

private:
    void Mostra(int icona, const QString& titolo, const QString& testo);

    QPointer<QWidget> proprietario_;
};

// "Sistemi condizionati (*.sic)|*.sic" -> {"Sistemi condizionati (*.sic)"}: the
// descriptions of the pairs, each followed by its pattern unless it shows it.
QStringList FiltriQt(const QString& filtro);
