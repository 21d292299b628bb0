#pragma once
// A command-line test: a folder of its own, and the program run in-process
// with its standard output and error kept.

#include <sstream>
#include <string>

#include "../CartellaDiProva.h"
#include "Comandi.h"

namespace combi::test {

class ProvaCli : public TestConCartella {
protected:
    using TestConCartella::TestConCartella;
    std::string P(const std::string& nome) const { return Percorso(nome); }

    int Esegui(const cli::Parole& parole) {
        out_.str(""), err_.str("");
        return cli::Esegui(parole, out_, err_);
    }

    std::ostringstream out_, err_;
};

}  // namespace combi::test
