<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AppController</name>
    <message>
        <source>Ready</source>
        <translation>Prêt</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Démarrage...</translation>
    </message>
    <message>
        <source>Not ready: enter a valid board first</source>
        <translation>Pas prêt : saisissez d'abord un board valide</translation>
    </message>
    <message>
        <source>Not ready: select at least one hand in both ranges</source>
        <translation>Pas prêt : sélectionnez au moins une main dans les deux ranges</translation>
    </message>
    <message>
        <source>Not ready: fill out both OOP and IP sizing</source>
        <translation>Pas prêt : renseignez les tailles de mise OOP et IP</translation>
    </message>
    <message>
        <source>Already running</source>
        <translation>Déjà en cours</translation>
    </message>
    <message>
        <source>Solve failed: %1</source>
        <translation>Échec du calcul : %1</translation>
    </message>
    <message>
        <source>Board %1 | iters %2 | expl≈%3 | EV(oop)=%4 EV(ip)=%5</source>
        <translation>Board %1 | itér. %2 | expl≈%3 | EV(oop)=%4 EV(ip)=%5</translation>
    </message>
    <message>
        <source>No previous solve config (solve once first)</source>
        <translation>Aucune configuration précédente (lancez d'abord un calcul)</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>Annulation...</translation>
    </message>
    <message>
        <source>Invalid/non-local file URL</source>
        <translation>URL de fichier invalide ou non locale</translation>
    </message>
    <message>
        <source>Empty file path</source>
        <translation>Chemin de fichier vide</translation>
    </message>
    <message>
        <source>Failed to open file</source>
        <translation>Impossible d'ouvrir le fichier</translation>
    </message>
    <message>
        <source>Invalid JSON</source>
        <translation>JSON invalide</translation>
    </message>
    <message>
        <source>Unrecognized project format</source>
        <translation>Format de projet non reconnu</translation>
    </message>
    <message>
        <source>Unsupported project version</source>
        <translation>Version de projet non prise en charge</translation>
    </message>
    <message>
        <source>Loaded project (%1 strategy nodes, %2 combo nodes)</source>
        <translation>Projet chargé (%1 nœuds de stratégie, %2 nœuds de combos)</translation>
    </message>
    <message>
        <source>Failed to open file: %1</source>
        <translation>Impossible d'ouvrir le fichier : %1</translation>
    </message>
    <message>
        <source>Failed to save file: %1</source>
        <translation>Impossible d'enregistrer le fichier : %1</translation>
    </message>
</context>
<context>
    <name>HandBuckets</name>
    <message>
        <source>air</source>
        <translation>air</translation>
    </message>
    <message>
        <source>back door flush draw</source>
        <translation>tirage couleur backdoor</translation>
    </message>
    <message>
        <source>bottom pair</source>
        <translation>paire basse</translation>
    </message>
    <message>
        <source>dry pair</source>
        <translation>paire sèche</translation>
    </message>
    <message>
        <source>flush</source>
        <translation>couleur</translation>
    </message>
    <message>
        <source>flush draw</source>
        <translation>tirage couleur</translation>
    </message>
    <message>
        <source>full house</source>
        <translation>full</translation>
    </message>
    <message>
        <source>gutter</source>
        <translation>tirage ventral</translation>
    </message>
    <message>
        <source>middle pair</source>
        <translation>paire moyenne</translation>
    </message>
    <message>
        <source>missed FD</source>
        <translation>tirage couleur manqué</translation>
    </message>
    <message>
        <source>missed OESD</source>
        <translation>OESD manqué</translation>
    </message>
    <message>
        <source>missed gutter</source>
        <translation>tirage ventral manqué</translation>
    </message>
    <message>
        <source>open ended straight draw</source>
        <translation>tirage quinte bilatéral</translation>
    </message>
    <message>
        <source>overpair</source>
        <translation>overpair</translation>
    </message>
    <message>
        <source>quads</source>
        <translation>carré</translation>
    </message>
    <message>
        <source>set</source>
        <translation>set</translation>
    </message>
    <message>
        <source>straight</source>
        <translation>quinte</translation>
    </message>
    <message>
        <source>straight flush</source>
        <translation>quinte flush</translation>
    </message>
    <message>
        <source>top pair</source>
        <translation>top paire</translation>
    </message>
    <message>
        <source>trips</source>
        <translation>brelan</translation>
    </message>
    <message>
        <source>two pair</source>
        <translation>double paire</translation>
    </message>
</context>
</TS>
