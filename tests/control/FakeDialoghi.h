#pragma once
// A dialog service that records every box and answers from scripts, so the
// tests drive the control without a human.

#include <QString>
#include <QStringList>

#include <deque>
#include <functional>

#include "ServizioDialoghi.h"

struct BoxMostrato {
    QString tipo;  // "informazione", "esclamazione", "critico", "domanda"
    QString titolo;
    QString testo;
};

struct DialogoFile {
    QString cartella, titolo, filtro, nome, estensione;
};

class FakeDialoghi : public ServizioDialoghi {
public:
    std::vector<BoxMostrato> boxes;
    std::deque<bool> risposte;          // Yes/No answers, in order; No when empty
    std::deque<Salvataggio> salvataggi; // answers to "save the changes?"; Annulla when empty
    std::deque<QString> fileScelti;     // answers of the file dialogs; cancel when empty
    std::vector<DialogoFile> dialoghiFile;
    std::function<void()> allaDomanda;  // runs when a question is asked

    void Informazione(const QString& t, const QString& s) override { boxes.push_back({"informazione", t, s}); }
    void Esclamazione(const QString& t, const QString& s) override { boxes.push_back({"esclamazione", t, s}); }
    void Critico(const QString& t, const QString& s) override { boxes.push_back({"critico", t, s}); }
    bool Domanda(const QString& t, const QString& s) override {
        boxes.push_back({"domanda", t, s});
        if (allaDomanda) allaDomanda();
        if (risposte.empty()) return false;
        const bool r = risposte.front();
        risposte.pop_front();
        return r;
    }
    Salvataggio ChiediSalvataggio(const QString& t, const QString& s) override {
        boxes.push_back({"salvataggio", t, s});
        if (salvataggi.empty()) return Salvataggio::Annulla;
        const Salvataggio r = salvataggi.front();
        salvataggi.pop_front();
        return r;
    }
    QString FileDaSalvare(const QString& c, const QString& t, const QString& f, const QString& n,
                          const QString& e) override {
        return File({c, t, f, n, e});
    }
    QString FileDaAprire(const QString& c, const QString& t, const QString& f, const QString& n,
                         const QString& e) override {
        return File({c, t, f, n, e});
    }

    QStringList Testi() const {
        QStringList t;
        for (const auto& b : boxes) t << b.testo;
        return t;
    }
    QStringList Tipi() const {
        QStringList t;
        for (const auto& b : boxes) t << b.tipo;
        return t;
    }
    const BoxMostrato* Ultimo() const { return boxes.empty() ? nullptr : &boxes.back(); }

private:
    QString File(DialogoFile d) {
        dialoghiFile.push_back(d);
        if (fileScelti.empty()) return {};
        QString f = fileScelti.front();
        fileScelti.pop_front();
        return f;
    }
};
