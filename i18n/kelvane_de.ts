<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AppController</name>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Wird gestartet...</translation>
    </message>
    <message>
        <source>Not ready: enter a valid board first</source>
        <translation>Nicht bereit: zuerst ein gültiges Board eingeben</translation>
    </message>
    <message>
        <source>Not ready: select at least one hand in both ranges</source>
        <translation>Nicht bereit: in beiden Ranges mindestens eine Hand auswählen</translation>
    </message>
    <message>
        <source>Not ready: fill out both OOP and IP sizing</source>
        <translation>Nicht bereit: Einsatzgrößen für OOP und IP ausfüllen</translation>
    </message>
    <message>
        <source>Already running</source>
        <translation>Läuft bereits</translation>
    </message>
    <message>
        <source>Solve failed: %1</source>
        <translation>Berechnung fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Board %1 | iters %2 | expl≈%3 | EV(oop)=%4 EV(ip)=%5</source>
        <translation>Board %1 | Iter. %2 | Expl.≈%3 | EV(oop)=%4 EV(ip)=%5</translation>
    </message>
    <message>
        <source>No previous solve config (solve once first)</source>
        <translation>Keine vorherige Solve-Konfiguration (zuerst einmal lösen)</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>Wird abgebrochen...</translation>
    </message>
    <message>
        <source>Invalid/non-local file URL</source>
        <translation>Ungültige oder nicht lokale Datei-URL</translation>
    </message>
    <message>
        <source>Empty file path</source>
        <translation>Leerer Dateipfad</translation>
    </message>
    <message>
        <source>Failed to open file</source>
        <translation>Datei konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Invalid JSON</source>
        <translation>Ungültiges JSON</translation>
    </message>
    <message>
        <source>Unrecognized project format</source>
        <translation>Unbekanntes Projektformat</translation>
    </message>
    <message>
        <source>Unsupported project version</source>
        <translation>Nicht unterstützte Projektversion</translation>
    </message>
    <message>
        <source>Loaded project (%1 strategy nodes, %2 combo nodes)</source>
        <translation>Projekt geladen (%1 Strategieknoten, %2 Combo-Knoten)</translation>
    </message>
    <message>
        <source>Failed to open file: %1</source>
        <translation>Datei konnte nicht geöffnet werden: %1</translation>
    </message>
    <message>
        <source>Failed to save file: %1</source>
        <translation>Datei konnte nicht gespeichert werden: %1</translation>
    </message>
</context>
<context>
    <name>HandBuckets</name>
    <message>
        <source>air</source>
        <translation>Luft</translation>
    </message>
    <message>
        <source>back door flush draw</source>
        <translation>Backdoor-Flush-Draw</translation>
    </message>
    <message>
        <source>bottom pair</source>
        <translation>Bottom Pair</translation>
    </message>
    <message>
        <source>dry pair</source>
        <translation>Trockenes Paar</translation>
    </message>
    <message>
        <source>flush</source>
        <translation>Flush</translation>
    </message>
    <message>
        <source>flush draw</source>
        <translation>Flush-Draw</translation>
    </message>
    <message>
        <source>full house</source>
        <translation>Full House</translation>
    </message>
    <message>
        <source>gutter</source>
        <translation>Gutshot</translation>
    </message>
    <message>
        <source>middle pair</source>
        <translation>Mittleres Paar</translation>
    </message>
    <message>
        <source>missed FD</source>
        <translation>Verpasster Flush-Draw</translation>
    </message>
    <message>
        <source>missed OESD</source>
        <translation>Verpasster OESD</translation>
    </message>
    <message>
        <source>missed gutter</source>
        <translation>Verpasster Gutshot</translation>
    </message>
    <message>
        <source>open ended straight draw</source>
        <translation>Beidseitiger Straight-Draw</translation>
    </message>
    <message>
        <source>overpair</source>
        <translation>Overpair</translation>
    </message>
    <message>
        <source>quads</source>
        <translation>Vierling</translation>
    </message>
    <message>
        <source>set</source>
        <translation>Set</translation>
    </message>
    <message>
        <source>straight</source>
        <translation>Straße</translation>
    </message>
    <message>
        <source>straight flush</source>
        <translation>Straight Flush</translation>
    </message>
    <message>
        <source>top pair</source>
        <translation>Top Pair</translation>
    </message>
    <message>
        <source>trips</source>
        <translation>Drilling</translation>
    </message>
    <message>
        <source>two pair</source>
        <translation>Zwei Paare</translation>
    </message>
</context>
</TS>
