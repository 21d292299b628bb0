#include "SegnalazioneErrori.h"

#include <exception>
#include <new>

QString TestoErrore(int numero, const QString& descrizione, int linea) {
    QString testo = QString::number(numero) + "- " + descrizione;
    if (linea != 0) testo += " Linea errore " + QString::number(linea);
    return testo;
}

void SegnalaEccezioneCorrente(ServizioDialoghi& dialoghi, const QString& sorgente, int ignorato) {
    int numero = 0;
    QString descrizione;
    int linea = 0;
    try {
        throw;
    } catch (const ErroreControllo& e) {
        numero = e.numero();
        descrizione = QString::fromStdString(e.descrizione());
        linea = e.linea();
    } catch (const combi::Errore& e) {
        numero = e.numero();
        descrizione = QString::fromStdString(e.descrizione());
    } catch (const std::bad_alloc&) {
        numero = combi::kErroreMemoria;
        descrizione = "Memoria esaurita";
    } catch (const std::exception& e) {
        numero = combi::kErroreArgomento;
        descrizione = QString::fromUtf8(e.what());
    } catch (...) {
        numero = combi::kErroreArgomento;
        descrizione = "Errore sconosciuto";
    }
    if (numero == 0 || (ignorato != 0 && numero == ignorato)) return;
    dialoghi.Critico(sorgente, TestoErrore(numero, descrizione, linea));
}
