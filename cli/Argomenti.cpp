#include "Argomenti.h"

#include <algorithm>
#include <charconv>

namespace combi::cli {

Argomenti::Argomenti(const std::vector<std::string>& parole, const std::vector<std::string>& conValore,
                     const std::vector<std::string>& flag) {
    auto tra = [](const std::vector<std::string>& v, const std::string& s) {
        return std::find(v.begin(), v.end(), s) != v.end();
    };
    for (size_t i = 0; i < parole.size(); ++i) {
        const std::string& p = parole[i];
        if (p.rfind("--", 0) != 0 || p.size() == 2) {
            posizionali_.push_back(p);
            continue;
        }
        const std::string nome = p.substr(2);
        if (tra(flag, nome)) {
            if (flag_.count(nome)) throw ErroreUso{"opzione --" + nome + " ripetuta"};
            flag_[nome] = true;
        } else if (tra(conValore, nome)) {
            if (i + 1 >= parole.size()) throw ErroreUso{"manca il valore di --" + nome};
            if (opzioni_.count(nome)) throw ErroreUso{"opzione --" + nome + " ripetuta"};
            opzioni_[nome] = parole[++i];
        } else {
            throw ErroreUso{"opzione sconosciuta: " + p};
        }
    }
}

std::optional<std::string> Argomenti::Opzione(const std::string& nome) const {
    const auto it = opzioni_.find(nome);
    if (it == opzioni_.end()) return std::nullopt;
    return it->second;
}

int LeggiIntero(const std::string& testo, int minimo, int massimo, const std::string& nome) {
    int valore{};
    const auto [fine, errore] = std::from_chars(testo.data(), testo.data() + testo.size(), valore);
    if (errore != std::errc() || fine != testo.data() + testo.size() || valore < minimo || valore > massimo)
        throw ErroreUso{nome + " deve essere un numero intero tra " + std::to_string(minimo) + " e " +
                        std::to_string(massimo) + ": \"" + testo + "\""};
    return valore;
}

}  // namespace combi::cli
