<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>AppController</name>
    <message>
        <source>Ready</source>
        <translation>Gotowe</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Uruchamianie...</translation>
    </message>
    <message>
        <source>Not ready: enter a valid board first</source>
        <translation>Niegotowe: najpierw wprowadź prawidłowy board</translation>
    </message>
    <message>
        <source>Not ready: select at least one hand in both ranges</source>
        <translation>Niegotowe: wybierz co najmniej jedną rękę w obu zakresach</translation>
    </message>
    <message>
        <source>Not ready: fill out both OOP and IP sizing</source>
        <translation>Niegotowe: uzupełnij rozmiary zagrań dla OOP i IP</translation>
    </message>
    <message>
        <source>Already running</source>
        <translation>Już działa</translation>
    </message>
    <message>
        <source>Solve failed: %1</source>
        <translation>Obliczenie nie powiodło się: %1</translation>
    </message>
    <message>
        <source>Board %1 | iters %2 | expl≈%3 | EV(oop)=%4 EV(ip)=%5</source>
        <translation>Board %1 | iter. %2 | expl≈%3 | EV(oop)=%4 EV(ip)=%5</translation>
    </message>
    <message>
        <source>No previous solve config (solve once first)</source>
        <translation>Brak poprzedniej konfiguracji (najpierw rozwiąż raz)</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>Anulowanie...</translation>
    </message>
    <message>
        <source>Invalid/non-local file URL</source>
        <translation>Nieprawidłowy lub nielokalny adres URL pliku</translation>
    </message>
    <message>
        <source>Empty file path</source>
        <translation>Pusta ścieżka pliku</translation>
    </message>
    <message>
        <source>Failed to open file</source>
        <translation>Nie można otworzyć pliku</translation>
    </message>
    <message>
        <source>Invalid JSON</source>
        <translation>Nieprawidłowy JSON</translation>
    </message>
    <message>
        <source>Unrecognized project format</source>
        <translation>Nierozpoznany format projektu</translation>
    </message>
    <message>
        <source>Unsupported project version</source>
        <translation>Nieobsługiwana wersja projektu</translation>
    </message>
    <message>
        <source>Loaded project (%1 strategy nodes, %2 combo nodes)</source>
        <translation>Wczytano projekt (węzły strategii: %1, węzły kombinacji: %2)</translation>
    </message>
    <message>
        <source>Failed to open file: %1</source>
        <translation>Nie można otworzyć pliku: %1</translation>
    </message>
    <message>
        <source>Failed to save file: %1</source>
        <translation>Nie można zapisać pliku: %1</translation>
    </message>
</context>
<context>
    <name>HandBuckets</name>
    <message>
        <source>air</source>
        <translation>powietrze</translation>
    </message>
    <message>
        <source>back door flush draw</source>
        <translation>backdoorowy draw do koloru</translation>
    </message>
    <message>
        <source>bottom pair</source>
        <translation>najniższa para</translation>
    </message>
    <message>
        <source>dry pair</source>
        <translation>sucha para</translation>
    </message>
    <message>
        <source>flush</source>
        <translation>kolor</translation>
    </message>
    <message>
        <source>flush draw</source>
        <translation>draw do koloru</translation>
    </message>
    <message>
        <source>full house</source>
        <translation>full</translation>
    </message>
    <message>
        <source>gutter</source>
        <translation>gutshot</translation>
    </message>
    <message>
        <source>middle pair</source>
        <translation>środkowa para</translation>
    </message>
    <message>
        <source>missed FD</source>
        <translation>nietrafiony draw do koloru</translation>
    </message>
    <message>
        <source>missed OESD</source>
        <translation>nietrafiony OESD</translation>
    </message>
    <message>
        <source>missed gutter</source>
        <translation>nietrafiony gutshot</translation>
    </message>
    <message>
        <source>open ended straight draw</source>
        <translation>obustronny draw do strita</translation>
    </message>
    <message>
        <source>overpair</source>
        <translation>overpara</translation>
    </message>
    <message>
        <source>quads</source>
        <translation>kareta</translation>
    </message>
    <message>
        <source>set</source>
        <translation>set</translation>
    </message>
    <message>
        <source>straight</source>
        <translation>strit</translation>
    </message>
    <message>
        <source>straight flush</source>
        <translation>poker</translation>
    </message>
    <message>
        <source>top pair</source>
        <translation>najwyższa para</translation>
    </message>
    <message>
        <source>trips</source>
        <translation>trójka</translation>
    </message>
    <message>
        <source>two pair</source>
        <translation>dwie pary</translation>
    </message>
</context>
</TS>
