<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ActionBar</name>
    <message>
        <source>%1 EV</source>
        <translation>%1 EV</translation>
    </message>
    <message>
        <source>%1 combos</source>
        <translation>%1 Combos</translation>
    </message>
    <message>
        <source>%1% equity</source>
        <translation>%1% Equity</translation>
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
<context>
    <name>HomePage</name>
    <message>
        <source> (future)</source>
        <translation> (künftig)</translation>
    </message>
    <message>
        <source>%1 (%2 free)</source>
        <translation>%1 (%2 frei)</translation>
    </message>
    <message>
        <source>%1 available</source>
        <translation>%1 verfügbar</translation>
    </message>
    <message>
        <source>%1%2</source>
        <translation>%1%2</translation>
    </message>
    <message>
        <source>A modern, high-performance holdem solver</source>
        <translation>Ein moderner Hochleistungs-Solver für Hold&apos;em</translation>
    </message>
    <message>
        <source>Accuracy (Today / Total)</source>
        <translation>Genauigkeit (Heute / Gesamt)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>Apr</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>Aug</translation>
    </message>
    <message>
        <source>Avg EV Loss (Today / Total)</source>
        <translation>Ø EV-Verlust (Heute / Gesamt)</translation>
    </message>
    <message>
        <source>Avg expl: %1</source>
        <translation>Ø Expl.: %1</translation>
    </message>
    <message>
        <source>Avg iters: %1</source>
        <translation>Ø Iter.: %1</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Clear Play vs. Solution Stats</source>
        <translation>Statistik „Spiel vs. Lösung“ leeren</translation>
    </message>
    <message>
        <source>Clear all Play vs. Solution statistics (today + total)?</source>
        <translation>Alle Statistiken zu „Spiel vs. Lösung“ leeren (heute + gesamt)?</translation>
    </message>
    <message>
        <source>Configure board, ranges, tree</source>
        <translation>Board, Ranges, Baum einrichten</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>Dez</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>Engine</translation>
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
        <translation>Feb</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>Fr</translation>
    </message>
    <message>
        <source>Hands (Today / Total)</source>
        <translation>Hände (Heute / Gesamt)</translation>
    </message>
    <message>
        <source>Import Range</source>
        <translation>Range importieren</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Jan</source>
        <translation>Jan</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>Jul</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>Jun</translation>
    </message>
    <message>
        <source>Last 52 weeks (incl. upcoming days)</source>
        <translation>Letzte 52 Wochen (inkl. kommender Tage)</translation>
    </message>
    <message>
        <source>Load from file</source>
        <translation>Aus Datei laden</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>Mär</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mai</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>Mo</translation>
    </message>
    <message>
        <source>New Solve</source>
        <translation>Neuer Solve</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>Nov</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>Okt</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Datei öffnen</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <source>Play vs. Solution</source>
        <translation>Spiel vs. Lösung</translation>
    </message>
    <message>
        <source>Quick Actions</source>
        <translation>Schnellaktionen</translation>
    </message>
    <message>
        <source>Quick Solve</source>
        <translation>Schnell-Solve</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>Sa</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save Project</source>
        <translation>Projekt speichern</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>Sep</translation>
    </message>
    <message>
        <source>Solve Activity</source>
        <translation>Solve-Aktivität</translation>
    </message>
    <message>
        <source>Solves: %1</source>
        <translation>Solves: %1</translation>
    </message>
    <message>
        <source>Kelvane Project (*.kelvaneproj)</source>
        <translation>Kelvane-Projekt (*.kelvaneproj)</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>So</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Threads</source>
        <translation>Threads</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Do</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>Di</translation>
    </message>
    <message>
        <source>Use default settings</source>
        <translation>Standardeinstellungen verwenden</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>Mi</translation>
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
        <translation>% Pot</translation>
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
        <translation>100nl Rake</translation>
    </message>
    <message>
        <source>200nl rake</source>
        <translation>200nl Rake</translation>
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
        <translation>3b Cold Call</translation>
    </message>
    <message>
        <source>4b</source>
        <translation>4b</translation>
    </message>
    <message>
        <source>500nl rake</source>
        <translation>500nl Rake</translation>
    </message>
    <message>
        <source>50nl rake</source>
        <translation>50nl Rake</translation>
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
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Add All-In</source>
        <translation>All-in hinzufügen</translation>
    </message>
    <message>
        <source>Add all-in if jam less than</source>
        <translation>All-in, wenn Jam unter</translation>
    </message>
    <message>
        <source>Add folder (IP)</source>
        <translation>Ordner hinzufügen (IP)</translation>
    </message>
    <message>
        <source>Add folder (OOP)</source>
        <translation>Ordner hinzufügen (OOP)</translation>
    </message>
    <message>
        <source>Add folder…</source>
        <translation>Ordner hinzufügen…</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this saved profile?</source>
        <translation>Dieses gespeicherte Profil wirklich löschen?</translation>
    </message>
    <message>
        <source>Bet sizes (%)</source>
        <translation>Bet-Größen (%)</translation>
    </message>
    <message>
        <source>Board</source>
        <translation>Board</translation>
    </message>
    <message>
        <source>Bomb pot</source>
        <translation>Bomb Pot</translation>
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
        <translation>Call Raise</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Check back</source>
        <translation>Check back</translation>
    </message>
    <message>
        <source>Choose a saved profile:</source>
        <translation>Gespeichertes Profil wählen:</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Clear all locally overridden population ranges for %1?</source>
        <translation>Alle lokal überschriebenen Population-Ranges für %1 zurücksetzen?</translation>
    </message>
    <message>
        <source>Clear all locally overridden standard ranges for %1?</source>
        <translation>Alle lokal überschriebenen Standard-Ranges für %1 zurücksetzen?</translation>
    </message>
    <message>
        <source>Clear card</source>
        <translation>Karte entfernen</translation>
    </message>
    <message>
        <source>Clear overrides…</source>
        <translation>Überschreibungen löschen…</translation>
    </message>
    <message>
        <source>Clear population overrides</source>
        <translation>Population-Überschreibungen löschen</translation>
    </message>
    <message>
        <source>Clear standard overrides</source>
        <translation>Standard-Überschreibungen löschen</translation>
    </message>
    <message>
        <source>Configure your game tree: board, ranges, and bet sizing.</source>
        <translation>Richte deinen Spielbaum ein: Board, Ranges und Bet-Sizing.</translation>
    </message>
    <message>
        <source>Continue to Solve →</source>
        <translation>Weiter zum Solve →</translation>
    </message>
    <message>
        <source>Custom Ranges</source>
        <translation>Eigene Ranges</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Delete range</source>
        <translation>Range löschen</translation>
    </message>
    <message>
        <source>Delete selected…</source>
        <translation>Auswahl löschen…</translation>
    </message>
    <message>
        <source>Delete settings profile</source>
        <translation>Einstellungsprofil löschen</translation>
    </message>
    <message>
        <source>Don&apos;t donk</source>
        <translation>Kein Donk</translation>
    </message>
    <message>
        <source>Effective Stack</source>
        <translation>Effektiver Stack</translation>
    </message>
    <message>
        <source>Export Population Ranges</source>
        <translation>Population-Ranges exportieren</translation>
    </message>
    <message>
        <source>Export Standard Ranges</source>
        <translation>Standard-Ranges exportieren</translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>Export fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Export failed: appController.saveTextFile unavailable.</source>
        <translation>Export fehlgeschlagen: appController.saveTextFile nicht verfügbar.</translation>
    </message>
    <message>
        <source>Export population…</source>
        <translation>Population exportieren…</translation>
    </message>
    <message>
        <source>Export standard…</source>
        <translation>Standard exportieren…</translation>
    </message>
    <message>
        <source>Extreme loose</source>
        <translation>Extrem loose</translation>
    </message>
    <message>
        <source>Flop</source>
        <translation>Flop</translation>
    </message>
    <message>
        <source>Flop card</source>
        <translation>Flop-Karte</translation>
    </message>
    <message>
        <source>Folder name:</source>
        <translation>Ordnername:</translation>
    </message>
    <message>
        <source>Game Settings</source>
        <translation>Spieleinstellungen</translation>
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
        <translation>IP-Range</translation>
    </message>
    <message>
        <source>IP Sizing</source>
        <translation>IP-Sizing</translation>
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
        <translation>Limp-Call</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Laden</translation>
    </message>
    <message>
        <source>Load Settings Profile</source>
        <translation>Einstellungsprofil laden</translation>
    </message>
    <message>
        <source>Load settings</source>
        <translation>Einstellungen laden</translation>
    </message>
    <message>
        <source>Loose aggressive</source>
        <translation>Loose-aggressiv</translation>
    </message>
    <message>
        <source>Looser reg</source>
        <translation>Lockerer Reg</translation>
    </message>
    <message>
        <source>Maniac</source>
        <translation>Maniac</translation>
    </message>
    <message>
        <source>Name this range:</source>
        <translation>Name für diese Range:</translation>
    </message>
    <message>
        <source>Nit</source>
        <translation>Nit</translation>
    </message>
    <message>
        <source>No rake</source>
        <translation>Kein Rake</translation>
    </message>
    <message>
        <source>No ranges yet.</source>
        <translation>Noch keine Ranges.</translation>
    </message>
    <message>
        <source>No saved profiles yet.</source>
        <translation>Noch keine gespeicherten Profile.</translation>
    </message>
    <message>
        <source>OOP</source>
        <translation>OOP</translation>
    </message>
    <message>
        <source>OOP Range</source>
        <translation>OOP-Range</translation>
    </message>
    <message>
        <source>OOP Sizing</source>
        <translation>OOP-Sizing</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Sonstige</translation>
    </message>
    <message>
        <source>Overfolder</source>
        <translation>Overfolder</translation>
    </message>
    <message>
        <source>Override</source>
        <translation>Überschreiben</translation>
    </message>
    <message>
        <source>Passive</source>
        <translation>Passiv</translation>
    </message>
    <message>
        <source>Passive loose</source>
        <translation>Passiv loose</translation>
    </message>
    <message>
        <source>Passive neutral</source>
        <translation>Passiv neutral</translation>
    </message>
    <message>
        <source>Passive tight</source>
        <translation>Passiv tight</translation>
    </message>
    <message>
        <source>Please enter a name.</source>
        <translation>Bitte einen Namen eingeben.</translation>
    </message>
    <message>
        <source>Please select a profile.</source>
        <translation>Bitte ein Profil auswählen.</translation>
    </message>
    <message>
        <source>Population Ranges</source>
        <translation>Population-Ranges</translation>
    </message>
    <message>
        <source>Profile name:</source>
        <translation>Profilname:</translation>
    </message>
    <message>
        <source>Project Setup</source>
        <translation>Projekt-Setup</translation>
    </message>
    <message>
        <source>Raise sizes (%)</source>
        <translation>Raise-Größen (%)</translation>
    </message>
    <message>
        <source>Rake (%)</source>
        <translation>Rake (%)</translation>
    </message>
    <message>
        <source>Rake Cap</source>
        <translation>Rake-Cap</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>River</source>
        <translation>River</translation>
    </message>
    <message>
        <source>River card</source>
        <translation>River-Karte</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save IP range</source>
        <translation>IP-Range speichern</translation>
    </message>
    <message>
        <source>Save OOP range</source>
        <translation>OOP-Range speichern</translation>
    </message>
    <message>
        <source>Save Settings Profile</source>
        <translation>Einstellungsprofil speichern</translation>
    </message>
    <message>
        <source>Save current range…</source>
        <translation>Aktuelle Range speichern…</translation>
    </message>
    <message>
        <source>Save settings</source>
        <translation>Einstellungen speichern</translation>
    </message>
    <message>
        <source>Select card</source>
        <translation>Karte wählen</translation>
    </message>
    <message>
        <source>Setup Required</source>
        <translation>Setup erforderlich</translation>
    </message>
    <message>
        <source>Solve RAM: %1 required • %2 available</source>
        <translation>Solve-RAM: %1 benötigt • %2 verfügbar</translation>
    </message>
    <message>
        <source>Standard LAG</source>
        <translation>Standard-LAG</translation>
    </message>
    <message>
        <source>Standard Ranges</source>
        <translation>Standard-Ranges</translation>
    </message>
    <message>
        <source>Starting Pot</source>
        <translation>Start-Pot</translation>
    </message>
    <message>
        <source>Target Exploitability (%)</source>
        <translation>Ziel-Exploitability (%)</translation>
    </message>
    <message>
        <source>This cannot be undone.</source>
        <translation>Das kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>This will also delete %1 range(s). This cannot be undone.</source>
        <translation>Dabei werden auch %1 Range(s) gelöscht. Das kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>Tighter reg</source>
        <translation>Tighter Reg</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Turn</translation>
    </message>
    <message>
        <source>Turn card</source>
        <translation>Turn-Karte</translation>
    </message>
    <message>
        <source>Weaker regs</source>
        <translation>Schwächere Regs</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>e.g. 30</source>
        <translation>z. B. 30</translation>
    </message>
    <message>
        <source>e.g., 0</source>
        <translation>z. B. 0</translation>
    </message>
    <message>
        <source>e.g., 0.10</source>
        <translation>z. B. 0.10</translation>
    </message>
    <message>
        <source>e.g., 100</source>
        <translation>z. B. 100</translation>
    </message>
    <message>
        <source>e.g., 100bb rake-free (fast)</source>
        <translation>z. B. 100bb ohne Rake (schnell)</translation>
    </message>
    <message>
        <source>e.g., 5.0</source>
        <translation>z. B. 5.0</translation>
    </message>
    <message>
        <source>e.g., AA, KK, AKs, QQ+ or 50%</source>
        <translation>z. B. AA, KK, AKs, QQ+ oder 50%</translation>
    </message>
    <message>
        <source>e.g., BTN vs BB</source>
        <translation>z. B. BTN vs BB</translation>
    </message>
    <message>
        <source>e.g., BTN vs BB (default)</source>
        <translation>z. B. BTN vs BB (Standard)</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>unbekannter Fehler</translation>
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
        <translation>%1 Hände</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Range</translation>
    </message>
    <message>
        <source>e.g., AA, KK, AKs, QQ+ or 50%</source>
        <translation>z. B. AA, KK, AKs, QQ+ oder 50%</translation>
    </message>
</context>
<context>
    <name>ResultsPage</name>
    <message>
        <source>%1 hands</source>
        <translation>%1 Hände</translation>
    </message>
    <message>
        <source>%1 options</source>
        <translation>%1 Optionen</translation>
    </message>
    <message>
        <source>%1 shown</source>
        <translation>%1 angezeigt</translation>
    </message>
    <message>
        <source>%1 to act</source>
        <translation>%1 am Zug</translation>
    </message>
    <message>
        <source>0..1</source>
        <translation>0..1</translation>
    </message>
    <message>
        <source>Action Frequencies</source>
        <translation>Aktionshäufigkeiten</translation>
    </message>
    <message>
        <source>Another hand</source>
        <translation>Nächste Hand</translation>
    </message>
    <message>
        <source>Available actions</source>
        <translation>Verfügbare Aktionen</translation>
    </message>
    <message>
        <source>Buckets</source>
        <translation>Buckets</translation>
    </message>
    <message>
        <source>Choose a role to start</source>
        <translation>Rolle wählen, um zu starten</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Click Turn/River to change</source>
        <translation>Turn/River anklicken zum Ändern</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Correct: %1</source>
        <translation>Richtig: %1</translation>
    </message>
    <message>
        <source>D</source>
        <translation>D</translation>
    </message>
    <message>
        <source>Deal %1</source>
        <translation>%1 austeilen</translation>
    </message>
    <message>
        <source>Drill spot</source>
        <translation>Spot üben</translation>
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
        <translation>EV-Verlust: %1</translation>
    </message>
    <message>
        <source>EV lost: —</source>
        <translation>EV-Verlust: —</translation>
    </message>
    <message>
        <source>EV:</source>
        <translation>EV:</translation>
    </message>
    <message>
        <source>Exploitability</source>
        <translation>Exploitability</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Filter: %1</translation>
    </message>
    <message>
        <source>Flop</source>
        <translation>Flop</translation>
    </message>
    <message>
        <source>Game Tree</source>
        <translation>Spielbaum</translation>
    </message>
    <message>
        <source>Hand Details</source>
        <translation>Hand-Details</translation>
    </message>
    <message>
        <source>Hand Log</source>
        <translation>Handverlauf</translation>
    </message>
    <message>
        <source>Hand details</source>
        <translation>Hand-Details</translation>
    </message>
    <message>
        <source>Hands</source>
        <translation>Hände</translation>
    </message>
    <message>
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message>
        <source>Incorrect: %1</source>
        <translation>Falsch: %1</translation>
    </message>
    <message>
        <source>No combos match the current filters.</source>
        <translation>Keine Combos passen zu den aktuellen Filtern.</translation>
    </message>
    <message>
        <source>No hand combos to display for this node.</source>
        <translation>Keine Combos für diesen Knoten.</translation>
    </message>
    <message>
        <source>Node-Locking</source>
        <translation>Node-Locking</translation>
    </message>
    <message>
        <source>Node-lock mode</source>
        <translation>Node-Lock-Modus</translation>
    </message>
    <message>
        <source>Node-locking is only available on decision nodes.</source>
        <translation>Node-Locking gibt es nur an Entscheidungsknoten.</translation>
    </message>
    <message>
        <source>OOP</source>
        <translation>OOP</translation>
    </message>
    <message>
        <source>Play as IP</source>
        <translation>Als IP spielen</translation>
    </message>
    <message>
        <source>Play as OOP</source>
        <translation>Als OOP spielen</translation>
    </message>
    <message>
        <source>Play as both</source>
        <translation>Beide spielen</translation>
    </message>
    <message>
        <source>Play vs solution</source>
        <translation>Gegen Lösung spielen</translation>
    </message>
    <message>
        <source>Play vs. Solution</source>
        <translation>Spiel vs. Lösung</translation>
    </message>
    <message>
        <source>Pot</source>
        <translation>Pot</translation>
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
        <translation>Zufällig</translation>
    </message>
    <message>
        <source>Range view</source>
        <translation>Range-Ansicht</translation>
    </message>
    <message>
        <source>Re-solve</source>
        <translation>Neu lösen</translation>
    </message>
    <message>
        <source>Reset weights</source>
        <translation>Gewichte zurücksetzen</translation>
    </message>
    <message>
        <source>River</source>
        <translation>River</translation>
    </message>
    <message>
        <source>Role: %1</source>
        <translation>Rolle: %1</translation>
    </message>
    <message>
        <source>Search (JJ, 56s, JcJd, ...)</source>
        <translation>Suche (JJ, 56s, JcJd, ...)</translation>
    </message>
    <message>
        <source>Stack (%1)</source>
        <translation>Stack (%1)</translation>
    </message>
    <message>
        <source>Standard mode</source>
        <translation>Standardmodus</translation>
    </message>
    <message>
        <source>Stop drill</source>
        <translation>Üben beenden</translation>
    </message>
    <message>
        <source>Strategy View</source>
        <translation>Strategieansicht</translation>
    </message>
    <message>
        <source>Strategy by Hand</source>
        <translation>Strategie nach Hand</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Tip: select an action above, then click a hand cell in the matrix to lock it.</source>
        <translation>Tipp: oben eine Aktion wählen, dann eine Hand in der Matrix anklicken, um sie zu sperren.</translation>
    </message>
    <message>
        <source>To call</source>
        <translation>Zu callen</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Turn</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>Winner: %1</source>
        <translation>Gewinner: %1</translation>
    </message>
    <message>
        <source>Won: %1</source>
        <translation>Gewonnen: %1</translation>
    </message>
    <message>
        <source>Won: —</source>
        <translation>Gewonnen: —</translation>
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
        <translation>Akzentfarbe</translation>
    </message>
    <message>
        <source>Apache 2.0</source>
        <translation>Apache 2.0</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Darstellung</translation>
    </message>
    <message>
        <source>Change the app language (takes effect immediately)</source>
        <translation>Sprache der App ändern (wirkt sofort)</translation>
    </message>
    <message>
        <source>Customize the app highlight color (buttons, accents, clubs/check).</source>
        <translation>Hervorhebungsfarbe der App anpassen (Schaltflächen, Akzente, Kreuz/Check).</translation>
    </message>
    <message>
        <source>Dark Mode</source>
        <translation>Dunkler Modus</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Licenses</source>
        <translation>Lizenzen</translation>
    </message>
    <message>
        <source>Open licenses folder</source>
        <translation>Lizenzordner öffnen</translation>
    </message>
    <message>
        <source>Open notices</source>
        <translation>Hinweise öffnen</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Auf Standard zurücksetzen</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>Einstellungen speichern</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systemstandard</translation>
    </message>
    <message>
        <source>Third-party notices and license texts are included in the &apos;licenses&apos; folder next to the executable.</source>
        <translation>Hinweise und Lizenztexte von Drittanbietern liegen im Ordner „licenses“ neben der Programmdatei.</translation>
    </message>
    <message>
        <source>Threading</source>
        <translation>Threading</translation>
    </message>
    <message>
        <source>Use dark color scheme throughout the interface</source>
        <translation>Dunkles Farbschema in der gesamten Oberfläche verwenden</translation>
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
        <translation>Board, Ranges, Baum</translation>
    </message>
    <message>
        <source>Browse strategies</source>
        <translation>Strategien ansehen</translation>
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
        <translation>Übersicht &amp; Schnellaktionen</translation>
    </message>
    <message>
        <source>Poker Solver</source>
        <translation>Poker-Solver</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Präferenzen</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>Run solver</source>
        <translation>Solver starten</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Setup</translation>
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
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Compute</source>
        <translation>Rechenleistung</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Konfiguration</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Steuerung</translation>
    </message>
    <message>
        <source>Elapsed</source>
        <translation>Vergangen</translation>
    </message>
    <message>
        <source>Exploitability</source>
        <translation>Exploitability</translation>
    </message>
    <message>
        <source>Finalizing</source>
        <translation>Abschluss</translation>
    </message>
    <message>
        <source>Finalizing…</source>
        <translation>Wird abgeschlossen…</translation>
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
        <translation>Iteration %1 | Exploitability=%2</translation>
    </message>
    <message>
        <source>Iterations %1 • Target %2% (≈ %3) • Threads %4</source>
        <translation>Iterationen %1 • Ziel %2% (≈ %3) • Threads %4</translation>
    </message>
    <message>
        <source>Iterations: %1</source>
        <translation>Iterationen: %1</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Max</translation>
    </message>
    <message>
        <source>Measuring...</source>
        <translation>Messung...</translation>
    </message>
    <message>
        <source>Metrics</source>
        <translation>Kennzahlen</translation>
    </message>
    <message>
        <source>No runs yet — click Start Solve to record a run here.</source>
        <translation>Noch keine Läufe — „Solve starten“ klicken, um hier einen Lauf zu erfassen.</translation>
    </message>
    <message>
        <source>OOP: %1</source>
        <translation>OOP: %1</translation>
    </message>
    <message>
        <source>Precision</source>
        <translation>Präzision</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Rake: %1% (cap %2)</source>
        <translation>Rake: %1% (Cap %2)</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Ready to solve</source>
        <translation>Bereit zum Solve</translation>
    </message>
    <message>
        <source>Recent Runs</source>
        <translation>Letzte Läufe</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>Verbleibend</translation>
    </message>
    <message>
        <source>Run the CFR solver and monitor progress in real-time.</source>
        <translation>CFR-Solver starten und Fortschritt in Echtzeit verfolgen.</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Läuft</translation>
    </message>
    <message>
        <source>Solve</source>
        <translation>Solve</translation>
    </message>
    <message>
        <source>Solver converged — finalizing results…</source>
        <translation>Solver konvergiert — Ergebnisse werden abgeschlossen…</translation>
    </message>
    <message>
        <source>Solving...</source>
        <translation>Berechnung...</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Start Solve</source>
        <translation>Solve starten</translation>
    </message>
    <message>
        <source>Target: %1% (≈ %2)</source>
        <translation>Ziel: %1% (≈ %2)</translation>
    </message>
    <message>
        <source>Threads</source>
        <translation>Threads</translation>
    </message>
    <message>
        <source>View Results →</source>
        <translation>Ergebnisse ansehen →</translation>
    </message>
    <message>
        <source>Window %1/%2</source>
        <translation>Fenster %1/%2</translation>
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
        <translation>Board, Ranges und Sizings ausfüllen, um Solve zu aktivieren</translation>
    </message>
    <message>
        <source>Finalizing</source>
        <translation>Abschluss</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>Run a solve to enable Results</source>
        <translation>Einen Solve ausführen, um Ergebnisse zu aktivieren</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Setup</translation>
    </message>
    <message>
        <source>Solve</source>
        <translation>Solve</translation>
    </message>
    <message>
        <source>Solving</source>
        <translation>Berechnung</translation>
    </message>
    <message>
        <source>Start a new project (or load one) from Home to enable Project</source>
        <translation>Auf Start ein Projekt anlegen (oder laden), um Projekt zu aktivieren</translation>
    </message>
</context>
<context>
    <name>TreeNode</name>
    <message>
        <source>Deal</source>
        <translation>Austeilen</translation>
    </message>
    <message>
        <source>EV: %1%2</source>
        <translation>EV: %1%2</translation>
    </message>
    <message>
        <source>Freq: %1%</source>
        <translation>Häuf.: %1%</translation>
    </message>
    <message>
        <source>Pot: %1</source>
        <translation>Pot: %1</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Ende</translation>
    </message>
</context>
</TS>
