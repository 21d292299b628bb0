#pragma once
// The engine reports a failure as an error number and an Italian description,
// the pair that the control's message boxes and the command line show.

#include <stdexcept>
#include <string>

namespace combi {

// Error numbers kept from the conventions users know from message boxes.
enum NumeroErrore : int {
    kErroreIndice = 9,            // index outside the data
    kErroreFileNonTrovato = 53,
    kErroreDiscoPieno = 61,
    kErroreFileTroncato = 62,     // input past end of file
    kErroreAccessoFile = 75,      // path/file access error
    kErroreFormatoFile = 321,     // invalid file format
    kErroreArgomento = 5,         // invalid procedure call or argument
    kErroreMemoria = 7,           // out of memory
};

class Errore : public std::runtime_error {
public:
    Errore(int numero, const std::string& descrizione)
        : std::runtime_error(descrizione), numero_(numero) {}
    int numero() const { return numero_; }
    std::string descrizione() const { return what(); }

private:
    int numero_;
};

}  // namespace combi
