<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
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
</TS>
