#pragma once
// The keys of the panel's commands, written once. Buttons, menu entries and
// the handlers a host registers are all named by these constants, so a
// misspelt key is a compile error rather than "Funzione non ancora
// disponibile" at run time. Keys are compared without regard to letter case.

namespace chiavi {

// Toolbar buttons.
inline constexpr char kApri[] = "Open";
inline constexpr char kSalvaPulsante[] = "Save";
inline constexpr char kNuovo[] = "New";
inline constexpr char kSelNumeri[] = "SelNumeri";
inline constexpr char kCondizioni[] = "Condizioni";
inline constexpr char kInserisci[] = "Inserisci";
inline constexpr char kEdit[] = "Edit";
inline constexpr char kDelete[] = "Delete";
inline constexpr char kQuadroRecuperi[] = "QuadroRecuperi";
inline constexpr char kLinkOpen[] = "LinkOpen";
inline constexpr char kLinkClose[] = "LinkClose";
inline constexpr char kSviluppa[] = "SviluppaCond";
inline constexpr char kStop[] = "Stop";
inline constexpr char kVisualizzaColonne[] = "VisualizzaColonne";
inline constexpr char kDecrGrid[] = "DecrGrid";
inline constexpr char kIncrGrid[] = "IncrGrid";
inline constexpr char kNaviga[] = "Naviga";
inline constexpr char kEffettoCondizioni[] = "EffettoCondizioni";
inline constexpr char kConfrontoCondSuCol[] = "ConfrontoCondSuCol";
inline constexpr char kRiduzione[] = "Riduzione";
inline constexpr char kStampaSk[] = "StampaSk";

// Entries of the "Save" menu.
inline constexpr char kSalva[] = "Salva";
inline constexpr char kSalvaConNome[] = "SalvaConNome";
inline constexpr char kSalvaColonne[] = "SalvaColonne";

// Handlers that only a host registers: no button of their own.
inline constexpr char kAggiornaNavigatore[] = "AggiornaNavigatore";
inline constexpr char kChiudiNavigatore[] = "ChiudiNavigatore";
inline constexpr char kStopLavoratori[] = "StopLavoratori";
inline constexpr char kApriFinestraRiduzione[] = "ApriFinestraRiduzione";

}  // namespace chiavi
