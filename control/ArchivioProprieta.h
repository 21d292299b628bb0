#pragma once
// The host's property store: the control keeps "Classe" and
// "NumeroThreadsSviluppo" there between sessions. The host application backs
// it with QSettings; tests and hosts without one use ArchivioMemoria.

#include <QHash>
#include <QString>

#include <cstdint>

class ArchivioProprieta {
public:
    virtual ~ArchivioProprieta() = default;
    virtual int16_t LeggiIntero(const QString& chiave, int16_t predefinito) const = 0;
    virtual void ScriviIntero(const QString& chiave, int16_t valore) = 0;
};

class ArchivioMemoria : public ArchivioProprieta {
public:
    int16_t LeggiIntero(const QString& chiave, int16_t predefinito) const override {
        return valori_.value(chiave, predefinito);
    }
    void ScriviIntero(const QString& chiave, int16_t valore) override { valori_[chiave] = valore; }
    bool Contiene(const QString& chiave) const { return valori_.contains(chiave); }

private:
    QHash<QString, int16_t> valori_;
};
