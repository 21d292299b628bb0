#include "F_QuadroRecuperi.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "FiltroTastiNumerici.h"
#include "LetturaNumero.h"
#include "PulsantiXP.h"
#include "Testo.h"
#include "TestiGrigliaQt.h"

namespace {

// The list's decimal text: no leading zeros, no decimals for whole numbers.
std::string Decimale(const QString& testo) {
    return QString::number(combi::LeggiNumero(testo.toStdString()), 'g', 15).toStdString();
}

}  // namespace

F_QuadroRecuperi::F_QuadroRecuperi(QWidget* genitore) : QDialog(genitore) {
    setObjectName("F_QuadroRecuperi");
    setWindowTitle("Quadro recuperi");
    auto* colonna = new QVBoxLayout(this);
    auto* blocchi = new QHBoxLayout;
    for (int blocco = 0; blocco < 2; ++blocco) {
        auto* griglia = new QGridLayout;
        const char* intestazioni[4] = {"QT.", "", "Min", "Max"};
        for (int c = 0; c < 4; ++c) {
            auto* label1 = new QLabel(intestazioni[c], this);
            label1->setObjectName("Label1");
            griglia->addWidget(label1, 0, c, Qt::AlignCenter);
        }
        for (int i = 1; i <= kQuadri / 2; ++i) CreaQuadro(blocco * (kQuadri / 2) + i, griglia, i);
        blocchi->addLayout(griglia);
    }
    colonna->addLayout(blocchi);
    auto* riga = new QHBoxLayout;
    const auto creati = CreaPulsantiXP(this, riga, {"CONFERMA", "CHIUDI"});
    pulsanti_[0] = creati[0];
    pulsanti_[1] = creati[1];
    colonna->addLayout(riga);
    connect(pulsanti_[0], &QPushButton::clicked, this, [this] {
        tag_ = "ddd";
        accept();
    });
    connect(pulsanti_[1], &QPushButton::clicked, this, [this] {
        tag_.clear();
        reject();
    });
    for (int p = 1; p <= kQuadri; ++p) ImpostaInseriti(p, 0);
}

void F_QuadroRecuperi::CreaQuadro(int p, QGridLayout* griglia, int riga) {
    auto* numero = new QLabel(QString::number(p), this);
    numero->setObjectName(QString("LabQuadroRec_%1").arg(p));
    labRecInseriti_[p] = new QLabel(this);
    labRecInseriti_[p]->setObjectName(QString("LabRecInseriti_%1").arg(p));
    labRecInseriti_[p]->setAlignment(Qt::AlignCenter);
    labRecInseriti_[p]->setMinimumWidth(28);
    labRecInseriti_[p]->setAutoFillBackground(true);
    txtMin_[p] = new QLineEdit(this);
    txtMin_[p]->setObjectName(QString("TxtMin_%1").arg(p));
    txtMax_[p] = new QLineEdit(this);
    txtMax_[p]->setObjectName(QString("TxtMax_%1").arg(p));
    griglia->addWidget(numero, riga, 0, Qt::AlignCenter);
    griglia->addWidget(labRecInseriti_[p], riga, 1);
    for (QLineEdit* casella : {txtMin_[p], txtMax_[p]}) {
        casella->setMaximumWidth(60);
        casella->installEventFilter(new FiltroTastiNumerici(false, casella));
    }
    griglia->addWidget(txtMin_[p], riga, 2);
    griglia->addWidget(txtMax_[p], riga, 3);
}

void F_QuadroRecuperi::ImpostaInseriti(int p, int quanti) {
    labRecInseriti_[p]->setText(QString::number(quanti));
    const bool usato = quanti > 0;
    QPalette colori = palette();
    if (usato) colori.setColor(QPalette::Window, QColor(255, 255, 0));
    labRecInseriti_[p]->setPalette(colori);
    txtMin_[p]->setEnabled(usato);
    txtMax_[p]->setEnabled(usato);
}

void F_QuadroRecuperi::LeggiRecuperiInseriti(const combi::TestiGriglia& testi) {
    std::array<int, kQuadri + 1> conta{};
    for (const auto& colonna : testi.colonne) {
        const int p = combi::LeggiInt32(colonna[combi::kRigaQuadroRec]);
        // A hand-made file may name any panel: only 1..20 exist.
        if (p >= 1 && p <= kQuadri) ++conta[p];
    }
    for (int p = 1; p <= kQuadri; ++p) ImpostaInseriti(p, conta[p]);
    for (int i = 0; i < kQuadri && i < static_cast<int>(testi.quadri.size()); ++i) {
        const auto campi = combi::Dividi(testi.quadri[i], ",");
        if (campi.size() < 3 || combi::LeggiNumero(campi[2]) == 0) continue;
        txtMin_[i + 1]->setText(QString::fromUtf8(campi[0]));
        txtMax_[i + 1]->setText(QString::fromUtf8(campi[1]));
    }
}

void F_QuadroRecuperi::LeggiRecuperiInseriti(const GrigliaCondizioni& griglia, const QListWidget& quadri) {
    LeggiRecuperiInseriti(LeggiTestiGriglia(griglia, quadri));
}

std::vector<std::string> F_QuadroRecuperi::RigheQuadri() const {
    std::vector<std::string> righe;
    for (int p = 1; p <= kQuadri; ++p) {
        const bool completo = !txtMin_[p]->text().trimmed().isEmpty() && !txtMax_[p]->text().trimmed().isEmpty();
        righe.push_back(completo ? Decimale(txtMin_[p]->text()) + "," + Decimale(txtMax_[p]->text()) + ",-1"
                                 : "-1,-1,-0");
    }
    return righe;
}

std::array<std::array<QString, 2>, F_QuadroRecuperi::kQuadri + 1> F_QuadroRecuperi::MinMax() const {
    std::array<std::array<QString, 2>, kQuadri + 1> testi{};
    for (int p = 1; p <= kQuadri; ++p) testi[p] = {txtMin_[p]->text(), txtMax_[p]->text()};
    return testi;
}

void F_QuadroRecuperi::ScriviQuadri(QListWidget& quadri) const {
    quadri.clear();
    for (const std::string& riga : RigheQuadri()) quadri.addItem(QString::fromStdString(riga));
}

void F_QuadroRecuperi::Mostra() {
    tag_.clear();
    exec();
}
