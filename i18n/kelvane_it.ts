<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>ActionBar</name>
    <message>
        <source>%1 EV</source>
        <translation>%1 EV</translation>
    </message>
    <message>
        <source>%1 combos</source>
        <translation>%1 combo</translation>
    </message>
    <message>
        <source>%1% equity</source>
        <translation>%1% equity</translation>
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
        <translation>Pronto</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Avvio...</translation>
    </message>
    <message>
        <source>Not ready: enter a valid board first</source>
        <translation>Non pronto: inserisci prima un board valido</translation>
    </message>
    <message>
        <source>Not ready: select at least one hand in both ranges</source>
        <translation>Non pronto: seleziona almeno una mano in entrambi i range</translation>
    </message>
    <message>
        <source>Not ready: fill out both OOP and IP sizing</source>
        <translation>Non pronto: compila i sizing di OOP e IP</translation>
    </message>
    <message>
        <source>Already running</source>
        <translation>Già in esecuzione</translation>
    </message>
    <message>
        <source>Solve failed: %1</source>
        <translation>Risoluzione non riuscita: %1</translation>
    </message>
    <message>
        <source>Board %1 | iters %2 | expl≈%3 | EV(oop)=%4 EV(ip)=%5</source>
        <translation>Board %1 | iter. %2 | expl≈%3 | EV(oop)=%4 EV(ip)=%5</translation>
    </message>
    <message>
        <source>No previous solve config (solve once first)</source>
        <translation>Nessuna configurazione precedente (risolvi prima una volta)</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>Annullamento...</translation>
    </message>
    <message>
        <source>Invalid/non-local file URL</source>
        <translation>URL del file non valido o non locale</translation>
    </message>
    <message>
        <source>Empty file path</source>
        <translation>Percorso del file vuoto</translation>
    </message>
    <message>
        <source>Failed to open file</source>
        <translation>Impossibile aprire il file</translation>
    </message>
    <message>
        <source>Invalid JSON</source>
        <translation>JSON non valido</translation>
    </message>
    <message>
        <source>Unrecognized project format</source>
        <translation>Formato di progetto non riconosciuto</translation>
    </message>
    <message>
        <source>Unsupported project version</source>
        <translation>Versione del progetto non supportata</translation>
    </message>
    <message>
        <source>Loaded project (%1 strategy nodes, %2 combo nodes)</source>
        <translation>Progetto caricato (%1 nodi di strategia, %2 nodi di combo)</translation>
    </message>
    <message>
        <source>Failed to open file: %1</source>
        <translation>Impossibile aprire il file: %1</translation>
    </message>
    <message>
        <source>Failed to save file: %1</source>
        <translation>Impossibile salvare il file: %1</translation>
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
        <translation>aria</translation>
    </message>
    <message>
        <source>back door flush draw</source>
        <translation>progetto di colore backdoor</translation>
    </message>
    <message>
        <source>bottom pair</source>
        <translation>coppia bassa</translation>
    </message>
    <message>
        <source>dry pair</source>
        <translation>coppia secca</translation>
    </message>
    <message>
        <source>flush</source>
        <translation>colore</translation>
    </message>
    <message>
        <source>flush draw</source>
        <translation>progetto di colore</translation>
    </message>
    <message>
        <source>full house</source>
        <translation>full</translation>
    </message>
    <message>
        <source>gutter</source>
        <translation>scala bucata</translation>
    </message>
    <message>
        <source>middle pair</source>
        <translation>coppia media</translation>
    </message>
    <message>
        <source>missed FD</source>
        <translation>progetto di colore mancato</translation>
    </message>
    <message>
        <source>missed OESD</source>
        <translation>OESD mancato</translation>
    </message>
    <message>
        <source>missed gutter</source>
        <translation>scala bucata mancata</translation>
    </message>
    <message>
        <source>open ended straight draw</source>
        <translation>progetto di scala bilaterale</translation>
    </message>
    <message>
        <source>overpair</source>
        <translation>overpair</translation>
    </message>
    <message>
        <source>quads</source>
        <translation>poker</translation>
    </message>
    <message>
        <source>set</source>
        <translation>set</translation>
    </message>
    <message>
        <source>straight</source>
        <translation>scala</translation>
    </message>
    <message>
        <source>straight flush</source>
        <translation>scala colore</translation>
    </message>
    <message>
        <source>top pair</source>
        <translation>coppia massima</translation>
    </message>
    <message>
        <source>trips</source>
        <translation>tris</translation>
    </message>
    <message>
        <source>two pair</source>
        <translation>doppia coppia</translation>
    </message>
</context>
<context>
    <name>HomePage</name>
    <message>
        <source> (future)</source>
        <translation> (futuro)</translation>
    </message>
    <message>
        <source>%1 (%2 free)</source>
        <translation>%1 (%2 liberi)</translation>
    </message>
    <message>
        <source>%1 available</source>
        <translation>%1 disponibili</translation>
    </message>
    <message>
        <source>%1%2</source>
        <translation>%1%2</translation>
    </message>
    <message>
        <source>A modern, high-performance holdem solver</source>
        <translation>Un solver di hold&apos;em moderno e ad alte prestazioni</translation>
    </message>
    <message>
        <source>Accuracy (Today / Total)</source>
        <translation>Precisione (oggi / totale)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Tutti i file (*)</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>Apr</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>Ago</translation>
    </message>
    <message>
        <source>Avg EV Loss (Today / Total)</source>
        <translation>Perdita EV media (oggi / totale)</translation>
    </message>
    <message>
        <source>Avg expl: %1</source>
        <translation>Expl. media: %1</translation>
    </message>
    <message>
        <source>Avg iters: %1</source>
        <translation>Iter. medie: %1</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Cancella</translation>
    </message>
    <message>
        <source>Clear Play vs. Solution Stats</source>
        <translation>Cancella statistiche Gioca vs soluzione</translation>
    </message>
    <message>
        <source>Clear all Play vs. Solution statistics (today + total)?</source>
        <translation>Cancellare tutte le statistiche di Gioca vs soluzione (oggi + totale)?</translation>
    </message>
    <message>
        <source>Configure board, ranges, tree</source>
        <translation>Configura board, range, albero</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>Dic</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>Motore</translation>
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
        <translation>Ven</translation>
    </message>
    <message>
        <source>Hands (Today / Total)</source>
        <translation>Mani (oggi / totale)</translation>
    </message>
    <message>
        <source>Import Range</source>
        <translation>Importa range</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Jan</source>
        <translation>Gen</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>Lug</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>Giu</translation>
    </message>
    <message>
        <source>Last 52 weeks (incl. upcoming days)</source>
        <translation>Ultime 52 settimane (giorni futuri inclusi)</translation>
    </message>
    <message>
        <source>Load from file</source>
        <translation>Carica da file</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>Mar</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mag</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>Lun</translation>
    </message>
    <message>
        <source>New Solve</source>
        <translation>Nuovo solve</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>Nov</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>Ott</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Apri file</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Apri progetto</translation>
    </message>
    <message>
        <source>Play vs. Solution</source>
        <translation>Gioca vs soluzione</translation>
    </message>
    <message>
        <source>Quick Actions</source>
        <translation>Azioni rapide</translation>
    </message>
    <message>
        <source>Quick Solve</source>
        <translation>Solve rapido</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>Sab</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Save Project</source>
        <translation>Salva progetto</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>Set</translation>
    </message>
    <message>
        <source>Solve Activity</source>
        <translation>Attività dei solve</translation>
    </message>
    <message>
        <source>Solves: %1</source>
        <translation>Solve: %1</translation>
    </message>
    <message>
        <source>Kelvane Project (*.kelvaneproj)</source>
        <translation>Progetto Kelvane (*.kelvaneproj)</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>Dom</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Threads</source>
        <translation>Thread</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Gio</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>Mar</translation>
    </message>
    <message>
        <source>Use default settings</source>
        <translation>Usa impostazioni predefinite</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>Mer</translation>
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
        <translation>% piatto</translation>
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
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>Add All-In</source>
        <translation>Aggiungi all-in</translation>
    </message>
    <message>
        <source>Add all-in if jam less than</source>
        <translation>All-in se il jam è sotto</translation>
    </message>
    <message>
        <source>Add folder (IP)</source>
        <translation>Aggiungi cartella (IP)</translation>
    </message>
    <message>
        <source>Add folder (OOP)</source>
        <translation>Aggiungi cartella (OOP)</translation>
    </message>
    <message>
        <source>Add folder…</source>
        <translation>Aggiungi cartella…</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Tutti i file (*)</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this saved profile?</source>
        <translation>Eliminare davvero questo profilo salvato?</translation>
    </message>
    <message>
        <source>Bet sizes (%)</source>
        <translation>Size di puntata (%)</translation>
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
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Check back</source>
        <translation>Check back</translation>
    </message>
    <message>
        <source>Choose a saved profile:</source>
        <translation>Scegli un profilo salvato:</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Cancella</translation>
    </message>
    <message>
        <source>Clear all locally overridden population ranges for %1?</source>
        <translation>Cancellare tutti i range di popolazione modificati in locale per %1?</translation>
    </message>
    <message>
        <source>Clear all locally overridden standard ranges for %1?</source>
        <translation>Cancellare tutti i range standard modificati in locale per %1?</translation>
    </message>
    <message>
        <source>Clear card</source>
        <translation>Togli carta</translation>
    </message>
    <message>
        <source>Clear overrides…</source>
        <translation>Cancella modifiche…</translation>
    </message>
    <message>
        <source>Clear population overrides</source>
        <translation>Cancella modifiche popolazione</translation>
    </message>
    <message>
        <source>Clear standard overrides</source>
        <translation>Cancella modifiche standard</translation>
    </message>
    <message>
        <source>Configure your game tree: board, ranges, and bet sizing.</source>
        <translation>Configura l&apos;albero di gioco: board, range e size di puntata.</translation>
    </message>
    <message>
        <source>Continue to Solve →</source>
        <translation>Vai al solve →</translation>
    </message>
    <message>
        <source>Custom Ranges</source>
        <translation>Range personali</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Delete range</source>
        <translation>Elimina range</translation>
    </message>
    <message>
        <source>Delete selected…</source>
        <translation>Elimina selezionati…</translation>
    </message>
    <message>
        <source>Delete settings profile</source>
        <translation>Elimina profilo impostazioni</translation>
    </message>
    <message>
        <source>Don&apos;t donk</source>
        <translation>No donk</translation>
    </message>
    <message>
        <source>Effective Stack</source>
        <translation>Stack effettivo</translation>
    </message>
    <message>
        <source>Export Population Ranges</source>
        <translation>Esporta range di popolazione</translation>
    </message>
    <message>
        <source>Export Standard Ranges</source>
        <translation>Esporta range standard</translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>Esportazione non riuscita: %1</translation>
    </message>
    <message>
        <source>Export failed: appController.saveTextFile unavailable.</source>
        <translation>Esportazione non riuscita: appController.saveTextFile non disponibile.</translation>
    </message>
    <message>
        <source>Export population…</source>
        <translation>Esporta popolazione…</translation>
    </message>
    <message>
        <source>Export standard…</source>
        <translation>Esporta standard…</translation>
    </message>
    <message>
        <source>Extreme loose</source>
        <translation>Molto loose</translation>
    </message>
    <message>
        <source>Flop</source>
        <translation>Flop</translation>
    </message>
    <message>
        <source>Flop card</source>
        <translation>Carta del flop</translation>
    </message>
    <message>
        <source>Folder name:</source>
        <translation>Nome cartella:</translation>
    </message>
    <message>
        <source>Game Settings</source>
        <translation>Impostazioni di gioco</translation>
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
        <translation>Range IP</translation>
    </message>
    <message>
        <source>IP Sizing</source>
        <translation>Size IP</translation>
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
        <translation>Carica</translation>
    </message>
    <message>
        <source>Load Settings Profile</source>
        <translation>Carica profilo impostazioni</translation>
    </message>
    <message>
        <source>Load settings</source>
        <translation>Carica impostazioni</translation>
    </message>
    <message>
        <source>Loose aggressive</source>
        <translation>Loose aggressivo</translation>
    </message>
    <message>
        <source>Looser reg</source>
        <translation>Reg più loose</translation>
    </message>
    <message>
        <source>Maniac</source>
        <translation>Maniaco</translation>
    </message>
    <message>
        <source>Name this range:</source>
        <translation>Nome del range:</translation>
    </message>
    <message>
        <source>Nit</source>
        <translation>Nit</translation>
    </message>
    <message>
        <source>No rake</source>
        <translation>Senza rake</translation>
    </message>
    <message>
        <source>No ranges yet.</source>
        <translation>Ancora nessun range.</translation>
    </message>
    <message>
        <source>No saved profiles yet.</source>
        <translation>Ancora nessun profilo salvato.</translation>
    </message>
    <message>
        <source>OOP</source>
        <translation>OOP</translation>
    </message>
    <message>
        <source>OOP Range</source>
        <translation>Range OOP</translation>
    </message>
    <message>
        <source>OOP Sizing</source>
        <translation>Size OOP</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Altro</translation>
    </message>
    <message>
        <source>Overfolder</source>
        <translation>Overfolder</translation>
    </message>
    <message>
        <source>Override</source>
        <translation>Sovrascrivi</translation>
    </message>
    <message>
        <source>Passive</source>
        <translation>Passivo</translation>
    </message>
    <message>
        <source>Passive loose</source>
        <translation>Passivo loose</translation>
    </message>
    <message>
        <source>Passive neutral</source>
        <translation>Passivo neutro</translation>
    </message>
    <message>
        <source>Passive tight</source>
        <translation>Passivo tight</translation>
    </message>
    <message>
        <source>Please enter a name.</source>
        <translation>Inserisci un nome.</translation>
    </message>
    <message>
        <source>Please select a profile.</source>
        <translation>Seleziona un profilo.</translation>
    </message>
    <message>
        <source>Population Ranges</source>
        <translation>Range di popolazione</translation>
    </message>
    <message>
        <source>Profile name:</source>
        <translation>Nome profilo:</translation>
    </message>
    <message>
        <source>Project Setup</source>
        <translation>Impostazione progetto</translation>
    </message>
    <message>
        <source>Raise sizes (%)</source>
        <translation>Size di rilancio (%)</translation>
    </message>
    <message>
        <source>Rake (%)</source>
        <translation>Rake (%)</translation>
    </message>
    <message>
        <source>Rake Cap</source>
        <translation>Tetto rake</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Pronto</translation>
    </message>
    <message>
        <source>River</source>
        <translation>River</translation>
    </message>
    <message>
        <source>River card</source>
        <translation>Carta del river</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Save IP range</source>
        <translation>Salva range IP</translation>
    </message>
    <message>
        <source>Save OOP range</source>
        <translation>Salva range OOP</translation>
    </message>
    <message>
        <source>Save Settings Profile</source>
        <translation>Salva profilo impostazioni</translation>
    </message>
    <message>
        <source>Save current range…</source>
        <translation>Salva range attuale…</translation>
    </message>
    <message>
        <source>Save settings</source>
        <translation>Salva impostazioni</translation>
    </message>
    <message>
        <source>Select card</source>
        <translation>Scegli carta</translation>
    </message>
    <message>
        <source>Setup Required</source>
        <translation>Configurazione richiesta</translation>
    </message>
    <message>
        <source>Solve RAM: %1 required • %2 available</source>
        <translation>RAM del solve: %1 richiesti • %2 disponibili</translation>
    </message>
    <message>
        <source>Standard LAG</source>
        <translation>LAG standard</translation>
    </message>
    <message>
        <source>Standard Ranges</source>
        <translation>Range standard</translation>
    </message>
    <message>
        <source>Starting Pot</source>
        <translation>Piatto iniziale</translation>
    </message>
    <message>
        <source>Target Exploitability (%)</source>
        <translation>Exploitability obiettivo (%)</translation>
    </message>
    <message>
        <source>This cannot be undone.</source>
        <translation>L&apos;operazione non può essere annullata.</translation>
    </message>
    <message>
        <source>This will also delete %1 range(s). This cannot be undone.</source>
        <translation>Verranno eliminati anche %1 range. L&apos;operazione non può essere annullata.</translation>
    </message>
    <message>
        <source>Tighter reg</source>
        <translation>Reg più tight</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Turn</translation>
    </message>
    <message>
        <source>Turn card</source>
        <translation>Carta del turn</translation>
    </message>
    <message>
        <source>Weaker regs</source>
        <translation>Reg più deboli</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Peso</translation>
    </message>
    <message>
        <source>e.g. 30</source>
        <translation>es. 30</translation>
    </message>
    <message>
        <source>e.g., 0</source>
        <translation>es. 0</translation>
    </message>
    <message>
        <source>e.g., 0.10</source>
        <translation>es. 0.10</translation>
    </message>
    <message>
        <source>e.g., 100</source>
        <translation>es. 100</translation>
    </message>
    <message>
        <source>e.g., 100bb rake-free (fast)</source>
        <translation>es. 100bb senza rake (veloce)</translation>
    </message>
    <message>
        <source>e.g., 5.0</source>
        <translation>es. 5.0</translation>
    </message>
    <message>
        <source>e.g., AA, KK, AKs, QQ+ or 50%</source>
        <translation>es. AA, KK, AKs, QQ+ o 50%</translation>
    </message>
    <message>
        <source>e.g., BTN vs BB</source>
        <translation>es. BTN vs BB</translation>
    </message>
    <message>
        <source>e.g., BTN vs BB (default)</source>
        <translation>es. BTN vs BB (predefinito)</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>errore sconosciuto</translation>
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
        <translation>%1 mani</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Cancella</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Range</translation>
    </message>
    <message>
        <source>e.g., AA, KK, AKs, QQ+ or 50%</source>
        <translation>es. AA, KK, AKs, QQ+ o 50%</translation>
    </message>
</context>
<context>
    <name>ResultsPage</name>
    <message>
        <source>%1 hands</source>
        <translation>%1 mani</translation>
    </message>
    <message>
        <source>%1 options</source>
        <translation>%1 opzioni</translation>
    </message>
    <message>
        <source>%1 shown</source>
        <translation>%1 mostrati</translation>
    </message>
    <message>
        <source>%1 to act</source>
        <translation>Agisce %1</translation>
    </message>
    <message>
        <source>0..1</source>
        <translation>0..1</translation>
    </message>
    <message>
        <source>Action Frequencies</source>
        <translation>Frequenze delle azioni</translation>
    </message>
    <message>
        <source>Another hand</source>
        <translation>Altra mano</translation>
    </message>
    <message>
        <source>Available actions</source>
        <translation>Azioni disponibili</translation>
    </message>
    <message>
        <source>Buckets</source>
        <translation>Categorie</translation>
    </message>
    <message>
        <source>Choose a role to start</source>
        <translation>Scegli un ruolo per iniziare</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Cancella</translation>
    </message>
    <message>
        <source>Click Turn/River to change</source>
        <translation>Clicca turn/river per cambiare</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Correct: %1</source>
        <translation>Corrette: %1</translation>
    </message>
    <message>
        <source>D</source>
        <translation>D</translation>
    </message>
    <message>
        <source>Deal %1</source>
        <translation>Distribuisci %1</translation>
    </message>
    <message>
        <source>Drill spot</source>
        <translation>Allena lo spot</translation>
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
        <translation>EV perso: %1</translation>
    </message>
    <message>
        <source>EV lost: —</source>
        <translation>EV perso: —</translation>
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
        <translation>Filtro: %1</translation>
    </message>
    <message>
        <source>Flop</source>
        <translation>Flop</translation>
    </message>
    <message>
        <source>Game Tree</source>
        <translation>Albero di gioco</translation>
    </message>
    <message>
        <source>Hand Details</source>
        <translation>Dettagli mano</translation>
    </message>
    <message>
        <source>Hand Log</source>
        <translation>Storico mani</translation>
    </message>
    <message>
        <source>Hand details</source>
        <translation>Dettagli mano</translation>
    </message>
    <message>
        <source>Hands</source>
        <translation>Mani</translation>
    </message>
    <message>
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message>
        <source>Incorrect: %1</source>
        <translation>Errate: %1</translation>
    </message>
    <message>
        <source>No combos match the current filters.</source>
        <translation>Nessuna combo corrisponde ai filtri attuali.</translation>
    </message>
    <message>
        <source>No hand combos to display for this node.</source>
        <translation>Nessuna combo da mostrare per questo nodo.</translation>
    </message>
    <message>
        <source>Node-Locking</source>
        <translation>Node-locking</translation>
    </message>
    <message>
        <source>Node-lock mode</source>
        <translation>Modalità node-lock</translation>
    </message>
    <message>
        <source>Node-locking is only available on decision nodes.</source>
        <translation>Il node-locking è disponibile solo sui nodi decisionali.</translation>
    </message>
    <message>
        <source>OOP</source>
        <translation>OOP</translation>
    </message>
    <message>
        <source>Play as IP</source>
        <translation>Gioca come IP</translation>
    </message>
    <message>
        <source>Play as OOP</source>
        <translation>Gioca come OOP</translation>
    </message>
    <message>
        <source>Play as both</source>
        <translation>Gioca entrambi</translation>
    </message>
    <message>
        <source>Play vs solution</source>
        <translation>Gioca contro la soluzione</translation>
    </message>
    <message>
        <source>Play vs. Solution</source>
        <translation>Gioca vs soluzione</translation>
    </message>
    <message>
        <source>Pot</source>
        <translation>Piatto</translation>
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
        <translation>Casuale</translation>
    </message>
    <message>
        <source>Range view</source>
        <translation>Vista range</translation>
    </message>
    <message>
        <source>Re-solve</source>
        <translation>Ri-risolvi</translation>
    </message>
    <message>
        <source>Reset weights</source>
        <translation>Azzera pesi</translation>
    </message>
    <message>
        <source>River</source>
        <translation>River</translation>
    </message>
    <message>
        <source>Role: %1</source>
        <translation>Ruolo: %1</translation>
    </message>
    <message>
        <source>Search (JJ, 56s, JcJd, ...)</source>
        <translation>Cerca (JJ, 56s, JcJd, ...)</translation>
    </message>
    <message>
        <source>Stack (%1)</source>
        <translation>Stack (%1)</translation>
    </message>
    <message>
        <source>Standard mode</source>
        <translation>Modalità standard</translation>
    </message>
    <message>
        <source>Stop drill</source>
        <translation>Ferma allenamento</translation>
    </message>
    <message>
        <source>Strategy View</source>
        <translation>Vista strategia</translation>
    </message>
    <message>
        <source>Strategy by Hand</source>
        <translation>Strategia per mano</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Riepilogo</translation>
    </message>
    <message>
        <source>Tip: select an action above, then click a hand cell in the matrix to lock it.</source>
        <translation>Suggerimento: scegli un&apos;azione qui sopra, poi clicca una mano nella matrice per bloccarla.</translation>
    </message>
    <message>
        <source>To call</source>
        <translation>Da chiamare</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Turn</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Peso</translation>
    </message>
    <message>
        <source>Winner: %1</source>
        <translation>Vincitore: %1</translation>
    </message>
    <message>
        <source>Won: %1</source>
        <translation>Vinto: %1</translation>
    </message>
    <message>
        <source>Won: —</source>
        <translation>Vinto: —</translation>
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
        <translation>Colore di accento</translation>
    </message>
    <message>
        <source>Apache 2.0</source>
        <translation>Apache 2.0</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aspetto</translation>
    </message>
    <message>
        <source>Change the app language (takes effect immediately)</source>
        <translation>Cambia la lingua dell&apos;app (effetto immediato)</translation>
    </message>
    <message>
        <source>Customize the app highlight color (buttons, accents, clubs/check).</source>
        <translation>Personalizza il colore di evidenziazione (pulsanti, accenti, fiori/check).</translation>
    </message>
    <message>
        <source>Dark Mode</source>
        <translation>Modalità scura</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Licenses</source>
        <translation>Licenze</translation>
    </message>
    <message>
        <source>Open licenses folder</source>
        <translation>Apri cartella licenze</translation>
    </message>
    <message>
        <source>Open notices</source>
        <translation>Apri note</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Ripristina predefiniti</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>Salva impostazioni</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Predefinita di sistema</translation>
    </message>
    <message>
        <source>Third-party notices and license texts are included in the &apos;licenses&apos; folder next to the executable.</source>
        <translation>Le note e i testi di licenza di terze parti si trovano nella cartella &apos;licenses&apos; accanto all&apos;eseguibile.</translation>
    </message>
    <message>
        <source>Threading</source>
        <translation>Thread</translation>
    </message>
    <message>
        <source>Use dark color scheme throughout the interface</source>
        <translation>Usa una combinazione di colori scura in tutta l&apos;interfaccia</translation>
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
        <translation>Board, range, albero</translation>
    </message>
    <message>
        <source>Browse strategies</source>
        <translation>Esplora strategie</translation>
    </message>
    <message>
        <source>Orvanthis</source>
        <translation>Orvanthis</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>Overview &amp; quick actions</source>
        <translation>Panoramica e azioni rapide</translation>
    </message>
    <message>
        <source>Poker Solver</source>
        <translation>Solver di poker</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferenze</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Risultati</translation>
    </message>
    <message>
        <source>Run solver</source>
        <translation>Avvia il solver</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
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
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Cancella</translation>
    </message>
    <message>
        <source>Compute</source>
        <translation>Calcolo</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Configurazione</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Controlli</translation>
    </message>
    <message>
        <source>Elapsed</source>
        <translation>Trascorso</translation>
    </message>
    <message>
        <source>Exploitability</source>
        <translation>Exploitability</translation>
    </message>
    <message>
        <source>Finalizing</source>
        <translation>Finalizzazione</translation>
    </message>
    <message>
        <source>Finalizing…</source>
        <translation>Finalizzazione…</translation>
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
        <translation>Iterazione %1 | exploitability=%2</translation>
    </message>
    <message>
        <source>Iterations %1 • Target %2% (≈ %3) • Threads %4</source>
        <translation>Iterazioni %1 • Obiettivo %2% (≈ %3) • Thread %4</translation>
    </message>
    <message>
        <source>Iterations: %1</source>
        <translation>Iterazioni: %1</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Max</translation>
    </message>
    <message>
        <source>Measuring...</source>
        <translation>Misurazione...</translation>
    </message>
    <message>
        <source>Metrics</source>
        <translation>Metriche</translation>
    </message>
    <message>
        <source>No runs yet — click Start Solve to record a run here.</source>
        <translation>Ancora nessuna esecuzione — clicca Avvia solve per registrarne una qui.</translation>
    </message>
    <message>
        <source>OOP: %1</source>
        <translation>OOP: %1</translation>
    </message>
    <message>
        <source>Precision</source>
        <translation>Precisione</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>Rake: %1% (cap %2)</source>
        <translation>Rake: %1% (tetto %2)</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Pronto</translation>
    </message>
    <message>
        <source>Ready to solve</source>
        <translation>Pronto per il solve</translation>
    </message>
    <message>
        <source>Recent Runs</source>
        <translation>Esecuzioni recenti</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>Rimanente</translation>
    </message>
    <message>
        <source>Run the CFR solver and monitor progress in real-time.</source>
        <translation>Esegui il solver CFR e segui l&apos;avanzamento in tempo reale.</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>In corso</translation>
    </message>
    <message>
        <source>Solve</source>
        <translation>Solve</translation>
    </message>
    <message>
        <source>Solver converged — finalizing results…</source>
        <translation>Solver a convergenza — finalizzazione dei risultati…</translation>
    </message>
    <message>
        <source>Solving...</source>
        <translation>Calcolo in corso...</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocità</translation>
    </message>
    <message>
        <source>Start Solve</source>
        <translation>Avvia solve</translation>
    </message>
    <message>
        <source>Target: %1% (≈ %2)</source>
        <translation>Obiettivo: %1% (≈ %2)</translation>
    </message>
    <message>
        <source>Threads</source>
        <translation>Thread</translation>
    </message>
    <message>
        <source>View Results →</source>
        <translation>Vedi risultati →</translation>
    </message>
    <message>
        <source>Window %1/%2</source>
        <translation>Finestra %1/%2</translation>
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
        <translation>Compila board, range e size per attivare Solve</translation>
    </message>
    <message>
        <source>Finalizing</source>
        <translation>Finalizzazione</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Pronto</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Risultati</translation>
    </message>
    <message>
        <source>Run a solve to enable Results</source>
        <translation>Esegui un solve per attivare Risultati</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
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
        <translation>Calcolo</translation>
    </message>
    <message>
        <source>Start a new project (or load one) from Home to enable Project</source>
        <translation>Crea un progetto (o caricane uno) da Home per attivare Progetto</translation>
    </message>
</context>
<context>
    <name>TreeNode</name>
    <message>
        <source>Deal</source>
        <translation>Distribuisci</translation>
    </message>
    <message>
        <source>EV: %1%2</source>
        <translation>EV: %1%2</translation>
    </message>
    <message>
        <source>Freq: %1%</source>
        <translation>Freq.: %1%</translation>
    </message>
    <message>
        <source>Pot: %1</source>
        <translation>Piatto: %1</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Terminale</translation>
    </message>
</context>
</TS>
