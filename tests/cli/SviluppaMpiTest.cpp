// --mpi in a build without MPI. With MPI built in, the option is exercised
// under mpirun by SviluppaMpi.sh: MPI can start only once in a process, so
// it cannot run here beside the other in-process tests.
#ifndef CF_CON_MPI

#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>
#include <sstream>

#include "Comandi.h"

namespace combi {
namespace {

TEST(SviluppaMpi, WithoutMpiTheOptionIsRefusedInItalianWithUsageExitCode) {
    const std::string colonne =
        (std::filesystem::temp_directory_path() / ("cf_mpi_" + std::to_string(::getpid()) + ".col")).string();
    std::ostringstream out, err;
    const int codice = cli::Esegui({"sviluppa", std::string(CF_CARTELLA_SORGENTI) + "/esempi/Esempio.sic",
                                    "--colonne", colonne, "--mpi"},
                                   out, err);
    EXPECT_EQ(codice, 2);
    EXPECT_NE(err.str().find("combifiltro-cli è stato compilato senza MPI"), std::string::npos) << err.str();
    EXPECT_FALSE(std::filesystem::exists(colonne));
    EXPECT_TRUE(out.str().empty());
}

}  // namespace
}  // namespace combi

#endif
