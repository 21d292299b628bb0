#pragma once
// The control's persisted properties kept in the application's QSettings,
// under the group "CombiFiltroA".

#include <QSettings>

#include "ArchivioProprieta.h"

class ArchivioQSettings : public ArchivioProprieta {
public:
    int16_t LeggiIntero(const QString& chiave, int16_t predefinito) const override {
        bool ok = false;
        const int valore = impostazioni_.value("CombiFiltroA/" + chiave, predefinito).toInt(&ok);
        return ok && valore >= INT16_MIN && valore <= INT16_MAX ? static_cast<int16_t>(valore) : predefinito;
    }
    void ScriviIntero(const QString& chiave, int16_t valore) override {
        impostazioni_.setValue("CombiFiltroA/" + chiave, valore);
    }

private:
    mutable QSettings impostazioni_;
};
