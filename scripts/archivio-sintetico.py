#!/usr/bin/env python3
"""Writes esempi/ArchivioSintetico.txt: a made-up archive of draws for the
example system, in the format that "Verifica su archivio" and
`combifiltro-cli storico` read. The numbers are pseudo-random (seed 16), the
dates the first of every month of 2021-2023: nothing here is a real draw.
    scripts/archivio-sintetico.py > esempi/ArchivioSintetico.txt
"""
import random

RUOTE = ["Bari", "Cagliari", "Firenze", "Genova", "Milano", "Napoli", "Palermo",
         "Roma", "Torino", "Venezia", "Nazionale"]

def riga(data, nome, numeri):
    return ";".join([data, nome] + [str(n) for n in numeri])

def main():
    rng = random.Random(16)
    print("# Archivio SINTETICO di esempio per CombiFiltro: numeri generati a caso")
    print("# (scripts/archivio-sintetico.py, seme 16), NON sono estrazioni reali.")
    print("# Una estrazione per riga: data;ruota o gioco;numeri")
    print("# (SuperEnalotto: sei numeri, poi Jolly e SuperStar).")
    for anno in (2021, 2022, 2023):
        for mese in range(1, 13):
            data = f"{anno:04d}-{mese:02d}-01"
            print()
            for ruota in RUOTE:
                print(riga(data, ruota, rng.sample(range(1, 91), 5)))
            print(riga(data, "10ELotto", sorted(rng.sample(range(1, 91), 20))))
            sei = rng.sample(range(1, 91), 7)
            print(riga(data, "SuperEnalotto", sorted(sei[:6]) + [sei[6], rng.randint(1, 90)]))

main()
