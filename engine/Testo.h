#pragma once
// Small text helpers shared by the decoder, the writers and the dialogs.

#include <string>
#include <string_view>
#include <vector>

namespace combi {

// Pieces of `testo` between separators. An empty text has no piece at all;
// otherwise n separators give n + 1 pieces, empty ones included.
std::vector<std::string_view> Dividi(std::string_view testo, std::string_view separatore);

// Blanks (spaces) removed at both ends, as the grid and the dialogs trim texts.
std::string Trim(std::string_view testo);

// Every CR LF removed.
std::string RimuoviACapo(std::string_view testo);

// Characters of a UTF-8 text (continuation bytes belong to the character
// started before them): lengths of user texts count these, not bytes.
size_t CaratteriUtf8(std::string_view testo);

// Byte offset where character `n` (0-based) starts; the size past the end.
size_t InizioCarattereUtf8(std::string_view testo, size_t n);

// Every occurrence of `da` replaced by `a`.
std::string Sostituisci(std::string_view testo, std::string_view da, std::string_view a);

}  // namespace combi
