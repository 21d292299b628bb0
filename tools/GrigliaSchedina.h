#pragma once
// Where each number 1..90 sits on a game's play slip. Lotto, 10ELotto and
// 10ELotto5M print nine rows of ten, 1..10 on the first row; SuperEnalotto
// prints nine columns of ten, 1..10 down the first column. Plain C++.

#include <string_view>

struct GrigliaSchedina {
    int righe = 9;
    int colonne = 10;
    bool perColonne = false;  // numbers run down the columns (SuperEnalotto)

    // Row and column (0-based) of number n (1..90).
    int Riga(int n) const { return perColonne ? (n - 1) % righe : (n - 1) / colonne; }
    int Colonna(int n) const { return perColonne ? (n - 1) / righe : (n - 1) % colonne; }
    // The number at a row and column.
    int Numero(int riga, int colonna) const { return perColonne ? colonna * righe + riga + 1 : riga * colonne + colonna + 1; }
};

// The grid of the game named as in the game combo; the Lotto grid for any
// other name.
GrigliaSchedina GrigliaDelGioco(std::string_view gioco);
