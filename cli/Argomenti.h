#pragma once
// Command-line arguments: positional words and "--name value" options.

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace combi::cli {

class Argomenti {
public:
    // `conValore`: the options that take a value; `flag`: those that do not.
    // Throws ErroreUso on an unknown option or a missing value.
    Argomenti(const std::vector<std::string>& parole, const std::vector<std::string>& conValore,
              const std::vector<std::string>& flag = {});

    const std::vector<std::string>& Posizionali() const { return posizionali_; }
    std::optional<std::string> Opzione(const std::string& nome) const;
    bool Flag(const std::string& nome) const { return flag_.count(nome) > 0; }

private:
    std::vector<std::string> posizionali_;
    std::map<std::string, std::string> opzioni_;
    std::map<std::string, bool> flag_;
};

// A wrong command line: the message is printed with the usage, exit code 2.
struct ErroreUso {
    std::string messaggio;
};

// A whole decimal number in [minimo, massimo], or ErroreUso naming the option.
int LeggiIntero(const std::string& testo, int minimo, int massimo, const std::string& nome);

}  // namespace combi::cli
