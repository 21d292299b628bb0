#pragma once
// Seven draws, a line that is not one and a comment: the archive of the
// command line's and the window's back-tests, worked out by hand there.

namespace combi::test {

inline constexpr const char* kArchivioDiProva =
    "# prova\n"
    "11/01/2024;Bari;4;5;6;60;61\n"
    "2024-01-02;Bari;1;2;4;10;11\n"
    "2024-01-04 Roma 1 2 3 40 41\n"
    "2024-01-04;Bari;20;21;22;23;24\n"
    "2024-01-05;Bari;20;21;22;23\n"
    "2024-01-06;Bari;7;30;31;32;33\n"
    "2024-01-09;Bari;50;51;52;53;54\n"
    "2023-12-28;Bari;80;81;82;83;84\n";

}  // namespace combi::test
