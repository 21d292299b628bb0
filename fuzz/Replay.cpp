// Runs a fuzz target's entry point on the files named on the command line,
// outside libFuzzer: a crash file found by a run becomes a plain reproduction.
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dati, size_t lunghezza);

int main(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        std::ifstream in(argv[i], std::ios::binary);
        if (!in) {
            std::fprintf(stderr, "Impossibile leggere il file: %s\n", argv[i]);
            return 1;
        }
        const std::vector<uint8_t> dati((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
        LLVMFuzzerTestOneInput(dati.data(), dati.size());
        std::printf("%s: ok\n", argv[i]);
    }
    return 0;
}
