#pragma once
// The parameter text with which the host inserts a condition without showing
// its editor: "accepted|recovery". The reading is plain text handling and
// lives in the engine, where it is fuzzed; the editors keep their names for it.

#include "ParametriTesto.h"

namespace editori {

using combi::CampiInserimento;
using combi::DividiCampi;
using combi::DividiIntestazione;
using combi::ErroreTestoNonValido;
using combi::ErroreValoreSenzaCasella;
using combi::ValoriElenco;
using combi::ValoriIntervallo;

}  // namespace editori
