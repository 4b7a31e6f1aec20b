<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>ActionBar</name>
    <message>
        <source>%1 EV</source>
        <translation>%1 EV</translation>
    </message>
    <message>
        <source>%1 combos</source>
        <translation>Kombinacje: %1</translation>
    </message>
    <message>
        <source>%1% equity</source>
        <translation>Equity: %1%</translation>
    </message>
    <message>
        <source>—</source>
        <translation>—</translation>
    </message>
</context>
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
    <name>Chip</name>
    <message>
        <source>×</source>
        <translation>×</translation>
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
<context>
    <name>HomePage</name>
    <message>
        <source> (future)</source>
        <translation> (przyszłość)</translation>
    </message>
    <message>
        <source>%1 (%2 free)</source>
        <translation>%1 (wolne: %2)</translation>
    </message>
    <message>
        <source>%1 available</source>
        <translation>Dostępne: %1</translation>
    </message>
    <message>
        <source>%1%2</source>
        <translation>%1%2</translation>
    </message>
    <message>
        <source>A modern, high-performance holdem solver</source>
        <translation>Nowoczesny, wydajny solver hold&apos;em</translation>
    </message>
    <message>
        <source>Accuracy (Today / Total)</source>
        <translation>Trafność (dziś / łącznie)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Wszystkie pliki (*)</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>Kwi</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>Sie</translation>
    </message>
    <message>
        <source>Avg EV Loss (Today / Total)</source>
        <translation>Śr. strata EV (dziś / łącznie)</translation>
    </message>
    <message>
        <source>Avg expl: %1</source>
        <translation>Śr. expl.: %1</translation>
    </message>
    <message>
        <source>Avg iters: %1</source>
        <translation>Śr. iter.: %1</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wyczyść</translation>
    </message>
    <message>
        <source>Clear Play vs. Solution Stats</source>
        <translation>Wyczyść statystyki Gra vs rozwiązanie</translation>
    </message>
    <message>
        <source>Clear all Play vs. Solution statistics (today + total)?</source>
        <translation>Wyczyścić wszystkie statystyki Gra vs rozwiązanie (dziś + łącznie)?</translation>
    </message>
    <message>
        <source>Configure board, ranges, tree</source>
        <translation>Ustaw board, zakresy, drzewo</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>Gru</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>Silnik</translation>
    </message>
    <message>
        <source>Orvanthis</source>
        <translation>Orvanthis</translation>
    </message>
    <message>
        <source>Orvanthis Core</source>
        <translation>Orvanthis Core</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>Lut</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>Pt</translation>
    </message>
    <message>
        <source>Hands (Today / Total)</source>
        <translation>Ręce (dziś / łącznie)</translation>
    </message>
    <message>
        <source>Import Range</source>
        <translation>Importuj zakres</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Jan</source>
        <translation>Sty</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>Lip</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>Cze</translation>
    </message>
    <message>
        <source>Last 52 weeks (incl. upcoming days)</source>
        <translation>Ostatnie 52 tygodnie (z nadchodzącymi dniami)</translation>
    </message>
    <message>
        <source>Load from file</source>
        <translation>Wczytaj z pliku</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>Mar</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Maj</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Pamięć</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>Pon</translation>
    </message>
    <message>
        <source>New Solve</source>
        <translation>Nowy solve</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>Lis</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>Paź</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Otwórz plik</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Otwórz projekt</translation>
    </message>
    <message>
        <source>Play vs. Solution</source>
        <translation>Gra vs rozwiązanie</translation>
    </message>
    <message>
        <source>Quick Actions</source>
        <translation>Szybkie akcje</translation>
    </message>
    <message>
        <source>Quick Solve</source>
        <translation>Szybki solve</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>Sob</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
    <message>
        <source>Save Project</source>
        <translation>Zapisz projekt</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>Wrz</translation>
    </message>
    <message>
        <source>Solve Activity</source>
        <translation>Aktywność solve&apos;ów</translation>
    </message>
    <message>
        <source>Solves: %1</source>
        <translation>Solve&apos;y: %1</translation>
    </message>
    <message>
        <source>Kelvane Project (*.kelvaneproj)</source>
        <translation>Projekt Kelvane (*.kelvaneproj)</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>Ndz</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Threads</source>
        <translation>Wątki</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Czw</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>Wt</translation>
    </message>
    <message>
        <source>Use default settings</source>
        <translation>Użyj ustawień domyślnych</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>Śr</translation>
    </message>
    <message>
        <source>—</source>
        <translation>—</translation>
    </message>
    <message>
        <source>→</source>
        <translation>→</translation>
    </message>
</context>
<context>
    <name>PlayingCard</name>
    <message>
        <source>?</source>
        <translation>?</translation>
    </message>
</context>
<context>
    <name>ProgressRing</name>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
</context>
<context>
    <name>ProjectPage</name>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>% pot</source>
        <translation>% puli</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 (VPIP %2)</source>
        <translation>%1 (VPIP %2)</translation>
    </message>
    <message>
        <source>%1 3bet vs %2 4bet</source>
        <translation>%1 3bet vs %2 4bet</translation>
    </message>
    <message>
        <source>%1 vs %2 3bet</source>
        <translation>%1 vs %2 3bet</translation>
    </message>
    <message>
        <source>100</source>
        <translation>100</translation>
    </message>
    <message>
        <source>100nl rake</source>
        <translation>Rake 100nl</translation>
    </message>
    <message>
        <source>200nl rake</source>
        <translation>Rake 200nl</translation>
    </message>
    <message>
        <source>33, 75, 125</source>
        <translation>33, 75, 125</translation>
    </message>
    <message>
        <source>3b</source>
        <translation>3b</translation>
    </message>
    <message>
        <source>3b cold call</source>
        <translation>3b cold call</translation>
    </message>
    <message>
        <source>4b</source>
        <translation>4b</translation>
    </message>
    <message>
        <source>500nl rake</source>
        <translation>Rake 500nl</translation>
    </message>
    <message>
        <source>50nl rake</source>
        <translation>Rake 50nl</translation>
    </message>
    <message>
        <source>6-max</source>
        <translation>6-max</translation>
    </message>
    <message>
        <source>75, 125, 200</source>
        <translation>75, 125, 200</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Dodaj</translation>
    </message>
    <message>
        <source>Add All-In</source>
        <translation>Dodaj all-in</translation>
    </message>
    <message>
        <source>Add all-in if jam less than</source>
        <translation>All-in, gdy jam poniżej</translation>
    </message>
    <message>
        <source>Add folder (IP)</source>
        <translation>Dodaj folder (IP)</translation>
    </message>
    <message>
        <source>Add folder (OOP)</source>
        <translation>Dodaj folder (OOP)</translation>
    </message>
    <message>
        <source>Add folder…</source>
        <translation>Dodaj folder…</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Wszystkie pliki (*)</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this saved profile?</source>
        <translation>Czy na pewno usunąć ten zapisany profil?</translation>
    </message>
    <message>
        <source>Bet sizes (%)</source>
        <translation>Bety (%)</translation>
    </message>
    <message>
        <source>Board</source>
        <translation>Board</translation>
    </message>
    <message>
        <source>Bomb pot</source>
        <translation>Bomb pot</translation>
    </message>
    <message>
        <source>Call 3b</source>
        <translation>Call 3b</translation>
    </message>
    <message>
        <source>Call 4b</source>
        <translation>Call 4b</translation>
    </message>
    <message>
        <source>Call raise</source>
        <translation>Call raise</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Check back</source>
        <translation>Check back</translation>
    </message>
    <message>
        <source>Choose a saved profile:</source>
        <translation>Wybierz zapisany profil:</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wyczyść</translation>
    </message>
    <message>
        <source>Clear all locally overridden population ranges for %1?</source>
        <translation>Wyczyścić wszystkie lokalnie zmienione zakresy populacji dla %1?</translation>
    </message>
    <message>
        <source>Clear all locally overridden standard ranges for %1?</source>
        <translation>Wyczyścić wszystkie lokalnie zmienione zakresy standardowe dla %1?</translation>
    </message>
    <message>
        <source>Clear card</source>
        <translation>Usuń kartę</translation>
    </message>
    <message>
        <source>Clear overrides…</source>
        <translation>Wyczyść zmiany…</translation>
    </message>
    <message>
        <source>Clear population overrides</source>
        <translation>Wyczyść zmiany populacji</translation>
    </message>
    <message>
        <source>Clear standard overrides</source>
        <translation>Wyczyść zmiany standardowe</translation>
    </message>
    <message>
        <source>Configure your game tree: board, ranges, and bet sizing.</source>
        <translation>Skonfiguruj drzewo gry: board, zakresy i wielkości betów.</translation>
    </message>
    <message>
        <source>Continue to Solve →</source>
        <translation>Przejdź do solve&apos;a →</translation>
    </message>
    <message>
        <source>Custom Ranges</source>
        <translation>Własne zakresy</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Delete range</source>
        <translation>Usuń zakres</translation>
    </message>
    <message>
        <source>Delete selected…</source>
        <translation>Usuń zaznaczone…</translation>
    </message>
    <message>
        <source>Delete settings profile</source>
        <translation>Usuń profil ustawień</translation>
    </message>
    <message>
        <source>Don&apos;t donk</source>
        <translation>Bez donka</translation>
    </message>
    <message>
        <source>Effective Stack</source>
        <translation>Efektywny stack</translation>
    </message>
    <message>
        <source>Export Population Ranges</source>
        <translation>Eksportuj zakresy populacji</translation>
    </message>
    <message>
        <source>Export Standard Ranges</source>
        <translation>Eksportuj zakresy standardowe</translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>Eksport nieudany: %1</translation>
    </message>
    <message>
        <source>Export failed: appController.saveTextFile unavailable.</source>
        <translation>Eksport nieudany: brak appController.saveTextFile.</translation>
    </message>
    <message>
        <source>Export population…</source>
        <translation>Eksportuj populację…</translation>
    </message>
    <message>
        <source>Export standard…</source>
        <translation>Eksportuj standardowe…</translation>
    </message>
    <message>
        <source>Extreme loose</source>
        <translation>Ekstremalnie luźny</translation>
    </message>
    <message>
        <source>Flop</source>
        <translation>Flop</translation>
    </message>
    <message>
        <source>Flop card</source>
        <translation>Karta flopa</translation>
    </message>
    <message>
        <source>Folder name:</source>
        <translation>Nazwa folderu:</translation>
    </message>
    <message>
        <source>Game Settings</source>
        <translation>Ustawienia gry</translation>
    </message>
    <message>
        <source>Heads up</source>
        <translation>Heads-up</translation>
    </message>
    <message>
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message>
        <source>IP Range</source>
        <translation>Zakres IP</translation>
    </message>
    <message>
        <source>IP Sizing</source>
        <translation>Rozmiary IP</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Limp</source>
        <translation>Limp</translation>
    </message>
    <message>
        <source>Limp-3b</source>
        <translation>Limp-3b</translation>
    </message>
    <message>
        <source>Limp-call</source>
        <translation>Limp-call</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Wczytaj</translation>
    </message>
    <message>
        <source>Load Settings Profile</source>
        <translation>Wczytaj profil ustawień</translation>
    </message>
    <message>
        <source>Load settings</source>
        <translation>Wczytaj ustawienia</translation>
    </message>
    <message>
        <source>Loose aggressive</source>
        <translation>Luźno-agresywny</translation>
    </message>
    <message>
        <source>Looser reg</source>
        <translation>Luźniejszy reg</translation>
    </message>
    <message>
        <source>Maniac</source>
        <translation>Maniak</translation>
    </message>
    <message>
        <source>Name this range:</source>
        <translation>Nazwij ten zakres:</translation>
    </message>
    <message>
        <source>Nit</source>
        <translation>Nit</translation>
    </message>
    <message>
        <source>No rake</source>
        <translation>Bez rake&apos;u</translation>
    </message>
    <message>
        <source>No ranges yet.</source>
        <translation>Brak zakresów.</translation>
    </message>
    <message>
        <source>No saved profiles yet.</source>
        <translation>Brak zapisanych profili.</translation>
    </message>
    <message>
        <source>OOP</source>
        <translation>OOP</translation>
    </message>
    <message>
        <source>OOP Range</source>
        <translation>Zakres OOP</translation>
    </message>
    <message>
        <source>OOP Sizing</source>
        <translation>Rozmiary OOP</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Inne</translation>
    </message>
    <message>
        <source>Overfolder</source>
        <translation>Overfolder</translation>
    </message>
    <message>
        <source>Override</source>
        <translation>Nadpisz</translation>
    </message>
    <message>
        <source>Passive</source>
        <translation>Pasywny</translation>
    </message>
    <message>
        <source>Passive loose</source>
        <translation>Pasywny luźny</translation>
    </message>
    <message>
        <source>Passive neutral</source>
        <translation>Pasywny neutralny</translation>
    </message>
    <message>
        <source>Passive tight</source>
        <translation>Pasywny ciasny</translation>
    </message>
    <message>
        <source>Please enter a name.</source>
        <translation>Podaj nazwę.</translation>
    </message>
    <message>
        <source>Please select a profile.</source>
        <translation>Wybierz profil.</translation>
    </message>
    <message>
        <source>Population Ranges</source>
        <translation>Zakresy populacji</translation>
    </message>
    <message>
        <source>Profile name:</source>
        <translation>Nazwa profilu:</translation>
    </message>
    <message>
        <source>Project Setup</source>
        <translation>Ustawienia projektu</translation>
    </message>
    <message>
        <source>Raise sizes (%)</source>
        <translation>Podbicia (%)</translation>
    </message>
    <message>
        <source>Rake (%)</source>
        <translation>Rake (%)</translation>
    </message>
    <message>
        <source>Rake Cap</source>
        <translation>Limit rake&apos;u</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Gotowe</translation>
    </message>
    <message>
        <source>River</source>
        <translation>River</translation>
    </message>
    <message>
        <source>River card</source>
        <translation>Karta rivera</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
    <message>
        <source>Save IP range</source>
        <translation>Zapisz zakres IP</translation>
    </message>
    <message>
        <source>Save OOP range</source>
        <translation>Zapisz zakres OOP</translation>
    </message>
    <message>
        <source>Save Settings Profile</source>
        <translation>Zapisz profil ustawień</translation>
    </message>
    <message>
        <source>Save current range…</source>
        <translation>Zapisz bieżący zakres…</translation>
    </message>
    <message>
        <source>Save settings</source>
        <translation>Zapisz ustawienia</translation>
    </message>
    <message>
        <source>Select card</source>
        <translation>Wybierz kartę</translation>
    </message>
    <message>
        <source>Setup Required</source>
        <translation>Wymagana konfiguracja</translation>
    </message>
    <message>
        <source>Solve RAM: %1 required • %2 available</source>
        <translation>RAM solve&apos;a: wymagane %1 • dostępne %2</translation>
    </message>
    <message>
        <source>Standard LAG</source>
        <translation>Standardowy LAG</translation>
    </message>
    <message>
        <source>Standard Ranges</source>
        <translation>Zakresy standardowe</translation>
    </message>
    <message>
        <source>Starting Pot</source>
        <translation>Pula początkowa</translation>
    </message>
    <message>
        <source>Target Exploitability (%)</source>
        <translation>Docelowa eksploatowalność (%)</translation>
    </message>
    <message>
        <source>This cannot be undone.</source>
        <translation>Tej operacji nie można cofnąć.</translation>
    </message>
    <message>
        <source>This will also delete %1 range(s). This cannot be undone.</source>
        <translation>Zostaną też usunięte zakresy (%1). Tej operacji nie można cofnąć.</translation>
    </message>
    <message>
        <source>Tighter reg</source>
        <translation>Ciaśniejszy reg</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Turn</translation>
    </message>
    <message>
        <source>Turn card</source>
        <translation>Karta turna</translation>
    </message>
    <message>
        <source>Weaker regs</source>
        <translation>Słabsze regi</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Waga</translation>
    </message>
    <message>
        <source>e.g. 30</source>
        <translation>np. 30</translation>
    </message>
    <message>
        <source>e.g., 0</source>
        <translation>np. 0</translation>
    </message>
    <message>
        <source>e.g., 0.10</source>
        <translation>np. 0.10</translation>
    </message>
    <message>
        <source>e.g., 100</source>
        <translation>np. 100</translation>
    </message>
    <message>
        <source>e.g., 100bb rake-free (fast)</source>
        <translation>np. 100bb bez rake&apos;u (szybko)</translation>
    </message>
    <message>
        <source>e.g., 5.0</source>
        <translation>np. 5.0</translation>
    </message>
    <message>
        <source>e.g., AA, KK, AKs, QQ+ or 50%</source>
        <translation>np. AA, KK, AKs, QQ+ lub 50%</translation>
    </message>
    <message>
        <source>e.g., BTN vs BB</source>
        <translation>np. BTN vs BB</translation>
    </message>
    <message>
        <source>e.g., BTN vs BB (default)</source>
        <translation>np. BTN vs BB (domyślnie)</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>nieznany błąd</translation>
    </message>
    <message>
        <source>vs %1 RFI</source>
        <translation>vs %1 RFI</translation>
    </message>
    <message>
        <source>vs 3bet</source>
        <translation>vs 3bet</translation>
    </message>
    <message>
        <source>vs 4bet</source>
        <translation>vs 4bet</translation>
    </message>
    <message>
        <source>vs RFI</source>
        <translation>vs RFI</translation>
    </message>
    <message>
        <source>—</source>
        <translation>—</translation>
    </message>
</context>
<context>
    <name>RangeEditor</name>
    <message>
        <source>%1 hands</source>
        <translation>Ręce: %1</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wyczyść</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Zakres</translation>
    </message>
    <message>
        <source>e.g., AA, KK, AKs, QQ+ or 50%</source>
        <translation>np. AA, KK, AKs, QQ+ lub 50%</translation>
    </message>
</context>
<context>
    <name>ResultsPage</name>
    <message>
        <source>%1 hands</source>
        <translation>Ręce: %1</translation>
    </message>
    <message>
        <source>%1 options</source>
        <translation>Opcje: %1</translation>
    </message>
    <message>
        <source>%1 shown</source>
        <translation>Pokazano: %1</translation>
    </message>
    <message>
        <source>%1 to act</source>
        <translation>Ruch: %1</translation>
    </message>
    <message>
        <source>0..1</source>
        <translation>0..1</translation>
    </message>
    <message>
        <source>Action Frequencies</source>
        <translation>Częstotliwości akcji</translation>
    </message>
    <message>
        <source>Another hand</source>
        <translation>Kolejna ręka</translation>
    </message>
    <message>
        <source>Available actions</source>
        <translation>Dostępne akcje</translation>
    </message>
    <message>
        <source>Buckets</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Choose a role to start</source>
        <translation>Wybierz rolę, aby zacząć</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wyczyść</translation>
    </message>
    <message>
        <source>Click Turn/River to change</source>
        <translation>Kliknij turn/river, aby zmienić</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Correct: %1</source>
        <translation>Poprawne: %1</translation>
    </message>
    <message>
        <source>D</source>
        <translation>D</translation>
    </message>
    <message>
        <source>Deal %1</source>
        <translation>Rozdanie: %1</translation>
    </message>
    <message>
        <source>Drill spot</source>
        <translation>Trenuj spot</translation>
    </message>
    <message>
        <source>EV (IP)</source>
        <translation>EV (IP)</translation>
    </message>
    <message>
        <source>EV (OOP)</source>
        <translation>EV (OOP)</translation>
    </message>
    <message>
        <source>EV lost: %1</source>
        <translation>Stracone EV: %1</translation>
    </message>
    <message>
        <source>EV lost: —</source>
        <translation>Stracone EV: —</translation>
    </message>
    <message>
        <source>EV:</source>
        <translation>EV:</translation>
    </message>
    <message>
        <source>Exploitability</source>
        <translation>Eksploatowalność</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Filtr: %1</translation>
    </message>
    <message>
        <source>Flop</source>
        <translation>Flop</translation>
    </message>
    <message>
        <source>Game Tree</source>
        <translation>Drzewo gry</translation>
    </message>
    <message>
        <source>Hand Details</source>
        <translation>Szczegóły ręki</translation>
    </message>
    <message>
        <source>Hand Log</source>
        <translation>Historia rąk</translation>
    </message>
    <message>
        <source>Hand details</source>
        <translation>Szczegóły ręki</translation>
    </message>
    <message>
        <source>Hands</source>
        <translation>Ręce</translation>
    </message>
    <message>
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message>
        <source>Incorrect: %1</source>
        <translation>Błędne: %1</translation>
    </message>
    <message>
        <source>No combos match the current filters.</source>
        <translation>Żadna kombinacja nie pasuje do filtrów.</translation>
    </message>
    <message>
        <source>No hand combos to display for this node.</source>
        <translation>Brak kombinacji do pokazania w tym węźle.</translation>
    </message>
    <message>
        <source>Node-Locking</source>
        <translation>Blokowanie węzłów</translation>
    </message>
    <message>
        <source>Node-lock mode</source>
        <translation>Tryb blokowania</translation>
    </message>
    <message>
        <source>Node-locking is only available on decision nodes.</source>
        <translation>Blokowanie węzłów działa tylko w węzłach decyzyjnych.</translation>
    </message>
    <message>
        <source>OOP</source>
        <translation>OOP</translation>
    </message>
    <message>
        <source>Play as IP</source>
        <translation>Graj jako IP</translation>
    </message>
    <message>
        <source>Play as OOP</source>
        <translation>Graj jako OOP</translation>
    </message>
    <message>
        <source>Play as both</source>
        <translation>Graj za obu</translation>
    </message>
    <message>
        <source>Play vs solution</source>
        <translation>Graj przeciw rozwiązaniu</translation>
    </message>
    <message>
        <source>Play vs. Solution</source>
        <translation>Gra vs rozwiązanie</translation>
    </message>
    <message>
        <source>Pot</source>
        <translation>Pula</translation>
    </message>
    <message>
        <source>Rake: %1</source>
        <translation>Rake: %1</translation>
    </message>
    <message>
        <source>Rake: —</source>
        <translation>Rake: —</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Losowo</translation>
    </message>
    <message>
        <source>Range view</source>
        <translation>Widok zakresu</translation>
    </message>
    <message>
        <source>Re-solve</source>
        <translation>Rozwiąż ponownie</translation>
    </message>
    <message>
        <source>Reset weights</source>
        <translation>Resetuj wagi</translation>
    </message>
    <message>
        <source>River</source>
        <translation>River</translation>
    </message>
    <message>
        <source>Role: %1</source>
        <translation>Rola: %1</translation>
    </message>
    <message>
        <source>Search (JJ, 56s, JcJd, ...)</source>
        <translation>Szukaj (JJ, 56s, JcJd, ...)</translation>
    </message>
    <message>
        <source>Stack (%1)</source>
        <translation>Stack (%1)</translation>
    </message>
    <message>
        <source>Standard mode</source>
        <translation>Tryb standardowy</translation>
    </message>
    <message>
        <source>Stop drill</source>
        <translation>Zakończ trening</translation>
    </message>
    <message>
        <source>Strategy View</source>
        <translation>Widok strategii</translation>
    </message>
    <message>
        <source>Strategy by Hand</source>
        <translation>Strategia wg ręki</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Podsumowanie</translation>
    </message>
    <message>
        <source>Tip: select an action above, then click a hand cell in the matrix to lock it.</source>
        <translation>Wskazówka: wybierz akcję powyżej, a potem kliknij rękę w macierzy, aby ją zablokować.</translation>
    </message>
    <message>
        <source>To call</source>
        <translation>Do sprawdzenia</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Turn</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Waga</translation>
    </message>
    <message>
        <source>Winner: %1</source>
        <translation>Zwycięzca: %1</translation>
    </message>
    <message>
        <source>Won: %1</source>
        <translation>Wygrana: %1</translation>
    </message>
    <message>
        <source>Won: —</source>
        <translation>Wygrana: —</translation>
    </message>
    <message>
        <source>|</source>
        <translation>|</translation>
    </message>
    <message>
        <source>—</source>
        <translation>—</translation>
    </message>
    <message>
        <source>▼</source>
        <translation>▼</translation>
    </message>
    <message>
        <source>✕</source>
        <translation>✕</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Accent Color</source>
        <translation>Kolor akcentu</translation>
    </message>
    <message>
        <source>Apache 2.0</source>
        <translation>Apache 2.0</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Wygląd</translation>
    </message>
    <message>
        <source>Change the app language (takes effect immediately)</source>
        <translation>Zmień język aplikacji (działa od razu)</translation>
    </message>
    <message>
        <source>Customize the app highlight color (buttons, accents, clubs/check).</source>
        <translation>Dostosuj kolor wyróżnień (przyciski, akcenty, trefle/check).</translation>
    </message>
    <message>
        <source>Dark Mode</source>
        <translation>Tryb ciemny</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Język</translation>
    </message>
    <message>
        <source>Licenses</source>
        <translation>Licencje</translation>
    </message>
    <message>
        <source>Open licenses folder</source>
        <translation>Otwórz folder licencji</translation>
    </message>
    <message>
        <source>Open notices</source>
        <translation>Otwórz informacje</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Resetuj</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Przywróć domyślne</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>Zapisz ustawienia</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Domyślny systemu</translation>
    </message>
    <message>
        <source>Third-party notices and license texts are included in the &apos;licenses&apos; folder next to the executable.</source>
        <translation>Informacje i teksty licencji komponentów zewnętrznych są w folderze &apos;licenses&apos; obok pliku programu.</translation>
    </message>
    <message>
        <source>Threading</source>
        <translation>Wątki</translation>
    </message>
    <message>
        <source>Use dark color scheme throughout the interface</source>
        <translation>Używaj ciemnego schematu kolorów w całym interfejsie</translation>
    </message>
    <message>
        <source>oneTBB</source>
        <translation>oneTBB</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>Board, ranges, tree</source>
        <translation>Board, zakresy, drzewo</translation>
    </message>
    <message>
        <source>Browse strategies</source>
        <translation>Przeglądaj strategie</translation>
    </message>
    <message>
        <source>Orvanthis</source>
        <translation>Orvanthis</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Overview &amp; quick actions</source>
        <translation>Przegląd i szybkie akcje</translation>
    </message>
    <message>
        <source>Poker Solver</source>
        <translation>Solver pokerowy</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferencje</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Wyniki</translation>
    </message>
    <message>
        <source>Run solver</source>
        <translation>Uruchom solver</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Solve</source>
        <translation>Solve</translation>
    </message>
    <message>
        <source>v0.1.0 dev</source>
        <translation>v0.1.0 dev</translation>
    </message>
    <message>
        <source>♠</source>
        <translation>♠</translation>
    </message>
</context>
<context>
    <name>SolvePage</name>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wyczyść</translation>
    </message>
    <message>
        <source>Compute</source>
        <translation>Obliczenia</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Konfiguracja</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Sterowanie</translation>
    </message>
    <message>
        <source>Elapsed</source>
        <translation>Upłynęło</translation>
    </message>
    <message>
        <source>Exploitability</source>
        <translation>Eksploatowalność</translation>
    </message>
    <message>
        <source>Finalizing</source>
        <translation>Finalizacja</translation>
    </message>
    <message>
        <source>Finalizing…</source>
        <translation>Finalizacja…</translation>
    </message>
    <message>
        <source>Flop: OOP %1 | IP %2</source>
        <translation>Flop: OOP %1 | IP %2</translation>
    </message>
    <message>
        <source>IP: %1</source>
        <translation>IP: %1</translation>
    </message>
    <message>
        <source>Iteration %1 | exploitability=%2</source>
        <translation>Iteracja %1 | eksploatowalność=%2</translation>
    </message>
    <message>
        <source>Iterations %1 • Target %2% (≈ %3) • Threads %4</source>
        <translation>Iteracje %1 • Cel %2% (≈ %3) • Wątki %4</translation>
    </message>
    <message>
        <source>Iterations: %1</source>
        <translation>Iteracje: %1</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Maks.</translation>
    </message>
    <message>
        <source>Measuring...</source>
        <translation>Pomiar...</translation>
    </message>
    <message>
        <source>Metrics</source>
        <translation>Metryki</translation>
    </message>
    <message>
        <source>No runs yet — click Start Solve to record a run here.</source>
        <translation>Brak przebiegów — kliknij Uruchom solve, aby zapisać tu przebieg.</translation>
    </message>
    <message>
        <source>OOP: %1</source>
        <translation>OOP: %1</translation>
    </message>
    <message>
        <source>Precision</source>
        <translation>Precyzja</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Postęp</translation>
    </message>
    <message>
        <source>Rake: %1% (cap %2)</source>
        <translation>Rake: %1% (limit %2)</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Gotowe</translation>
    </message>
    <message>
        <source>Ready to solve</source>
        <translation>Gotowe do solve&apos;a</translation>
    </message>
    <message>
        <source>Recent Runs</source>
        <translation>Ostatnie przebiegi</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>Pozostało</translation>
    </message>
    <message>
        <source>Run the CFR solver and monitor progress in real-time.</source>
        <translation>Uruchom solver CFR i śledź postęp na żywo.</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>W toku</translation>
    </message>
    <message>
        <source>Solve</source>
        <translation>Solve</translation>
    </message>
    <message>
        <source>Solver converged — finalizing results…</source>
        <translation>Solver zbieżny — finalizacja wyników…</translation>
    </message>
    <message>
        <source>Solving...</source>
        <translation>Liczenie...</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Szybkość</translation>
    </message>
    <message>
        <source>Start Solve</source>
        <translation>Uruchom solve</translation>
    </message>
    <message>
        <source>Target: %1% (≈ %2)</source>
        <translation>Cel: %1% (≈ %2)</translation>
    </message>
    <message>
        <source>Threads</source>
        <translation>Wątki</translation>
    </message>
    <message>
        <source>View Results →</source>
        <translation>Zobacz wyniki →</translation>
    </message>
    <message>
        <source>Window %1/%2</source>
        <translation>Okno %1/%2</translation>
    </message>
    <message>
        <source>—</source>
        <translation>—</translation>
    </message>
    <message>
        <source>▼</source>
        <translation>▼</translation>
    </message>
</context>
<context>
    <name>TopBar</name>
    <message>
        <source>Fill board, ranges, and sizings to enable Solve</source>
        <translation>Uzupełnij board, zakresy i rozmiary, aby włączyć Solve</translation>
    </message>
    <message>
        <source>Finalizing</source>
        <translation>Finalizacja</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Gotowe</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Wyniki</translation>
    </message>
    <message>
        <source>Run a solve to enable Results</source>
        <translation>Uruchom solve, aby włączyć Wyniki</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Solve</source>
        <translation>Solve</translation>
    </message>
    <message>
        <source>Solving</source>
        <translation>Liczenie</translation>
    </message>
    <message>
        <source>Start a new project (or load one) from Home to enable Project</source>
        <translation>Utwórz projekt (lub wczytaj) na stronie Start, aby włączyć Projekt</translation>
    </message>
</context>
<context>
    <name>TreeNode</name>
    <message>
        <source>Deal</source>
        <translation>Rozdanie</translation>
    </message>
    <message>
        <source>EV: %1%2</source>
        <translation>EV: %1%2</translation>
    </message>
    <message>
        <source>Freq: %1%</source>
        <translation>Częst.: %1%</translation>
    </message>
    <message>
        <source>Pot: %1</source>
        <translation>Pula: %1</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Koniec</translation>
    </message>
</context>
</TS>
