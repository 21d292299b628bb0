#include "CampiLavoratori.h"

#include <QLineEdit>
#include <QSignalBlocker>
#include <QWidget>

#include <algorithm>

#include "LetturaNumero.h"

namespace {

QLineEdit* Campo(const std::vector<QLineEdit*>& campi, int i) {
    return i >= 1 && i < int(campi.size()) ? campi[size_t(i)] : nullptr;
}

}  // namespace

CampiLavoratori::CampiLavoratori(QWidget* contenitore) : QObject(contenitore), contenitore_(contenitore) {
    Ricrea(0);
}

QLineEdit* CampiLavoratori::TxtPMin(int i) const { return Campo(txtPMin_, i); }
QLineEdit* CampiLavoratori::TxtPMax(int i) const { return Campo(txtPMax_, i); }
QLineEdit* CampiLavoratori::txtMsgFromDll(int i) const { return Campo(txtMsgFromDll_, i); }

void CampiLavoratori::Ricrea(int quanti) {
    for (auto* campi : {&txtPMin_, &txtPMax_, &txtMsgFromDll_}) {
        for (QLineEdit* campo : *campi) delete campo;
        campi->assign(1, nullptr);
    }
    quanti = std::clamp(quanti, 0, kMassimo);
    testate_.assign(size_t(quanti) + 1, 0);
    tenute_.assign(size_t(quanti) + 1, 0);
    for (int i = 1; i <= quanti; ++i) {
        auto* minimo = new QLineEdit(contenitore_);
        auto* massimo = new QLineEdit(contenitore_);
        auto* messaggio = new QLineEdit(contenitore_);
        minimo->setObjectName(QString("TxtPMin_%1").arg(i));
        massimo->setObjectName(QString("TxtPMax_%1").arg(i));
        messaggio->setObjectName(QString("txtMsgFromDll_%1").arg(i));
        connect(minimo, &QLineEdit::textChanged, this, [this, i](const QString& testo) {
            testate_[size_t(i)] = combi::LeggiInt32(testo.toStdString());
            Somma();
        });
        connect(massimo, &QLineEdit::textChanged, this, [this, i](const QString& testo) {
            tenute_[size_t(i)] = combi::LeggiInt32(testo.toStdString());
            Somma();
        });
        connect(messaggio, &QLineEdit::textChanged, this, &CampiLavoratori::CompletamentoCambiato);
        txtPMin_.push_back(minimo);
        txtPMax_.push_back(massimo);
        txtMsgFromDll_.push_back(messaggio);
    }
}

void CampiLavoratori::Somma() {
    double testate = 0, tenute = 0;
    for (size_t i = 1; i < testate_.size(); ++i) {
        testate += testate_[i];
        tenute += tenute_[i];
    }
    emit ContatoriCambiati(testate, tenute);
}

void CampiLavoratori::Azzera() {
    SvuotaCompletamento(false);
    for (size_t i = 1; i < txtPMin_.size(); ++i) {
        txtPMin_[i]->setText("0");
        txtPMax_[i]->setText("0");
    }
}

void CampiLavoratori::SvuotaCompletamento(bool silenzioso) {
    for (size_t i = 1; i < txtMsgFromDll_.size(); ++i) {
        const QSignalBlocker blocco(silenzioso ? txtMsgFromDll_[i] : nullptr);
        txtMsgFromDll_[i]->clear();
    }
}

// The test counts filled fields, not notices: a worker that fills its field
// twice does not count twice.
QStringList CampiLavoratori::FileCompleti() const {
    QStringList file;
    for (size_t i = 1; i < txtMsgFromDll_.size(); ++i) {
        const QString testo = txtMsgFromDll_[i]->text().trimmed();
        if (testo.isEmpty()) return {};
        file << testo;
    }
    return file;
}
