#pragma once
// Seeded random systems for the differential tests: every condition type,
// link groups (nested and unbalanced), recovery panels and reduction values,
// written as grid texts so that the decoder is exercised too.

#include <random>
#include <string>

#include "DecodificaCondizioni.h"
#include "Sviluppo.h"

namespace combi::test {

class GeneratoreSistemi {
public:
    explicit GeneratoreSistemi(uint32_t seme) : rng_(seme) {}

    ParametriSviluppo Sistema(int maxNumeri = 14, int maxClasse = 8) {
        const int classe = Tra(1, maxClasse);
        return SistemaDi(classe, Tra(classe, std::max(classe, maxNumeri)));
    }

    // A system of exactly `n` numbers in class `classe`.
    ParametriSviluppo SistemaDi(int classe, int n) {
        ParametriSviluppo p;
        p.classe = classe;
        std::vector<int> tutti(90);
        for (int i = 0; i < 90; ++i) tutti[i] = i + 1;
        std::shuffle(tutti.begin(), tutti.end(), rng_);
        p.numeri.assign(tutti.begin(), tutti.begin() + n);
        std::sort(p.numeri.begin(), p.numeri.end());
        p.riduzione = Tra(0, 3) == 0 ? Tra(1, 5) : 0;
        TestiGriglia g;
        const int quante = Tra(0, 9);
        for (int i = 0; i < quante; ++i) g.colonne.push_back(Condizione(p));
        for (int q = 0; q < 20; ++q)
            g.quadri.push_back(Tra(0, 2) ? std::to_string(Tra(0, 2)) + "," + std::to_string(Tra(0, 4)) + ",-1"
                                         : "-1,-1,-0");
        const SistemaDecodificato s = LeggiCondizioni(g);
        p.condizioni = s.condizioni;
        p.quadri = s.quadri;
        return p;
    }

    int Tra(int a, int b) { return std::uniform_int_distribution<int>(a, b)(rng_); }

private:
    std::string Elenco(int da, int a) {
        std::string s;
        for (int v = da; v <= a; ++v)
            if (Tra(0, 2) == 0) s += (s.empty() ? "" : "-") + std::to_string(v);
        return s;
    }

    std::string Intervallo(int massimo) {
        const int x = Tra(0, massimo), y = Tra(0, massimo);
        return std::to_string(std::min(x, y)) + "-" + std::to_string(std::max(x, y));
    }

    TestiCondizione Condizione(const ParametriSviluppo& p) {
        const int tipo = Tra(0, 24);  // above 18: links, more often than one in nineteen
        TestiCondizione t;
        if (tipo > 18) {
            t[kRigaCondizione] = Tra(0, 1) ? "LinkOpen" : "LinkClose";
            t[kRigaPunti] = Elenco(0, 5);
            return t;
        }
        const int k = p.classe;
        t[kRigaCondizione] = tipo == 0 ? "Ignota" : NomeTipoCondizione(tipo);
        const bool elenco = GiudicataSuElenco(tipo);
        const int massimo[] = {0, 0, 0, 0, 0, 600, 0, 90, 0, 0, 0, 0, 90, 40, 60, 90};
        t[kRigaPunti] = elenco ? Elenco(0, std::min(10, k + 1)) : Intervallo(massimo[std::min(tipo, 15)]);
        t[kRigaRecupero] = elenco ? Elenco(0, std::min(10, k + 1)) : Intervallo(massimo[std::min(tipo, 15)]);
        const int quadri[] = {1, 2, 3, 19, 20};  // the first panels and the last
        t[kRigaQuadroRec] = Tra(0, 1) ? std::to_string(quadri[Tra(0, 4)]) : " ";
        switch (tipo) {
        case kPuntiColonna:
            for (int n : p.numeri)
                if (Tra(0, 1)) t[kRigaParametri] += (t[kRigaParametri].empty() ? "" : "-") + std::to_string(n);
            break;
        case kPariDispari: t[kRigaParametri] = Tra(0, 1) ? "Pari" : "Dispari"; break;
        case kPeso: t[kRigaParametri] = "Caselle :\r\n" + Elenco(1, k); break;
        case kResto: t[kRigaParametri] = "Resto a : " + std::to_string(Tra(0, 5)); break;
        case kVortice: t[kRigaParametri] = Tra(0, 1) ? "Diretto" : "Inverso"; break;
        case kSimmetrie: t[kRigaParametri] = Tra(0, 1) ? "Dirette" : "Inverse"; break;
        case kParalleli: t[kRigaParametri] = Tra(0, 1) ? "Diretti" : "Inversi"; break;
        case kPosizioni: t[kRigaParametri] = "Casella :\r\n" + std::to_string(Tra(0, 21)); break;
        case kSequenze:
            for (int i = Tra(0, 4); i > 0; --i)
                t[kRigaParametri] += std::string(Tra(0, 1) ? "P" : "D") + (i > 1 ? "\r\n" : "");
            break;
        default: break;
        }
        return t;
    }

    std::mt19937 rng_;
};

}  // namespace combi::test
