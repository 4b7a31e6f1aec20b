<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>ActionBar</name>
    <message>
        <source>%1 EV</source>
        <translation>%1 EV</translation>
    </message>
    <message>
        <source>%1 combos</source>
        <translation>%1 combos</translation>
    </message>
    <message>
        <source>%1% equity</source>
        <translation>%1% d&apos;équité</translation>
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
<context>
    <name>HomePage</name>
    <message>
        <source> (future)</source>
        <translation> (à venir)</translation>
    </message>
    <message>
        <source>%1 (%2 free)</source>
        <translation>%1 (%2 libre)</translation>
    </message>
    <message>
        <source>%1 available</source>
        <translation>%1 disponible</translation>
    </message>
    <message>
        <source>%1%2</source>
        <translation>%1%2</translation>
    </message>
    <message>
        <source>A modern, high-performance holdem solver</source>
        <translation>Un solver de hold&apos;em moderne et performant</translation>
    </message>
    <message>
        <source>Accuracy (Today / Total)</source>
        <translation>Précision (aujourd&apos;hui / total)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>Avr.</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>Août</translation>
    </message>
    <message>
        <source>Avg EV Loss (Today / Total)</source>
        <translation>Perte d&apos;EV moy. (aujourd&apos;hui / total)</translation>
    </message>
    <message>
        <source>Avg expl: %1</source>
        <translation>Expl. moy. : %1</translation>
    </message>
    <message>
        <source>Avg iters: %1</source>
        <translation>Itér. moy. : %1</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Clear Play vs. Solution Stats</source>
        <translation>Effacer les stats Jouer vs solution</translation>
    </message>
    <message>
        <source>Clear all Play vs. Solution statistics (today + total)?</source>
        <translation>Effacer toutes les statistiques Jouer vs solution (aujourd&apos;hui + total) ?</translation>
    </message>
    <message>
        <source>Configure board, ranges, tree</source>
        <translation>Configurer board, ranges, arbre</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>Déc.</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>Moteur</translation>
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
        <translation>Févr.</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>Ven.</translation>
    </message>
    <message>
        <source>Hands (Today / Total)</source>
        <translation>Mains (aujourd&apos;hui / total)</translation>
    </message>
    <message>
        <source>Import Range</source>
        <translation>Importer une range</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Jan</source>
        <translation>Janv.</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>Juil.</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>Juin</translation>
    </message>
    <message>
        <source>Last 52 weeks (incl. upcoming days)</source>
        <translation>52 dernières semaines (jours à venir inclus)</translation>
    </message>
    <message>
        <source>Load from file</source>
        <translation>Charger un fichier</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>Mars</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mai</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Mémoire</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>Lun.</translation>
    </message>
    <message>
        <source>New Solve</source>
        <translation>Nouveau solve</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>Nov.</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>Oct.</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Ouvrir un fichier</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Ouvrir un projet</translation>
    </message>
    <message>
        <source>Play vs. Solution</source>
        <translation>Jouer vs solution</translation>
    </message>
    <message>
        <source>Quick Actions</source>
        <translation>Actions rapides</translation>
    </message>
    <message>
        <source>Quick Solve</source>
        <translation>Solve rapide</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>Sam.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save Project</source>
        <translation>Enregistrer le projet</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>Sept.</translation>
    </message>
    <message>
        <source>Solve Activity</source>
        <translation>Activité des solves</translation>
    </message>
    <message>
        <source>Solves: %1</source>
        <translation>Solves : %1</translation>
    </message>
    <message>
        <source>Kelvane Project (*.kelvaneproj)</source>
        <translation>Projet Kelvane (*.kelvaneproj)</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>Dim.</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Système</translation>
    </message>
    <message>
        <source>Threads</source>
        <translation>Threads</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Jeu.</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>Mar.</translation>
    </message>
    <message>
        <source>Use default settings</source>
        <translation>Utiliser les réglages par défaut</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>Mer.</translation>
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
        <translation>% du pot</translation>
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
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Add All-In</source>
        <translation>Ajouter all-in</translation>
    </message>
    <message>
        <source>Add all-in if jam less than</source>
        <translation>All-in si le jam est sous</translation>
    </message>
    <message>
        <source>Add folder (IP)</source>
        <translation>Ajouter un dossier (IP)</translation>
    </message>
    <message>
        <source>Add folder (OOP)</source>
        <translation>Ajouter un dossier (OOP)</translation>
    </message>
    <message>
        <source>Add folder…</source>
        <translation>Ajouter un dossier…</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this saved profile?</source>
        <translation>Voulez-vous vraiment supprimer ce profil enregistré ?</translation>
    </message>
    <message>
        <source>Bet sizes (%)</source>
        <translation>Mises (%)</translation>
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
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Check back</source>
        <translation>Check back</translation>
    </message>
    <message>
        <source>Choose a saved profile:</source>
        <translation>Choisissez un profil enregistré :</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Clear all locally overridden population ranges for %1?</source>
        <translation>Effacer toutes les ranges de population modifiées localement pour %1 ?</translation>
    </message>
    <message>
        <source>Clear all locally overridden standard ranges for %1?</source>
        <translation>Effacer toutes les ranges standard modifiées localement pour %1 ?</translation>
    </message>
    <message>
        <source>Clear card</source>
        <translation>Retirer la carte</translation>
    </message>
    <message>
        <source>Clear overrides…</source>
        <translation>Effacer les modifications…</translation>
    </message>
    <message>
        <source>Clear population overrides</source>
        <translation>Effacer les modifs population</translation>
    </message>
    <message>
        <source>Clear standard overrides</source>
        <translation>Effacer les modifs standard</translation>
    </message>
    <message>
        <source>Configure your game tree: board, ranges, and bet sizing.</source>
        <translation>Configurez votre arbre de jeu : board, ranges et tailles de mise.</translation>
    </message>
    <message>
        <source>Continue to Solve →</source>
        <translation>Continuer vers le solve →</translation>
    </message>
    <message>
        <source>Custom Ranges</source>
        <translation>Ranges perso</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Delete range</source>
        <translation>Supprimer la range</translation>
    </message>
    <message>
        <source>Delete selected…</source>
        <translation>Supprimer la sélection…</translation>
    </message>
    <message>
        <source>Delete settings profile</source>
        <translation>Supprimer le profil de réglages</translation>
    </message>
    <message>
        <source>Don&apos;t donk</source>
        <translation>Pas de donk</translation>
    </message>
    <message>
        <source>Effective Stack</source>
        <translation>Tapis effectif</translation>
    </message>
    <message>
        <source>Export Population Ranges</source>
        <translation>Exporter les ranges de population</translation>
    </message>
    <message>
        <source>Export Standard Ranges</source>
        <translation>Exporter les ranges standard</translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>Échec de l&apos;export : %1</translation>
    </message>
    <message>
        <source>Export failed: appController.saveTextFile unavailable.</source>
        <translation>Échec de l&apos;export : appController.saveTextFile indisponible.</translation>
    </message>
    <message>
        <source>Export population…</source>
        <translation>Exporter population…</translation>
    </message>
    <message>
        <source>Export standard…</source>
        <translation>Exporter standard…</translation>
    </message>
    <message>
        <source>Extreme loose</source>
        <translation>Très loose</translation>
    </message>
    <message>
        <source>Flop</source>
        <translation>Flop</translation>
    </message>
    <message>
        <source>Flop card</source>
        <translation>Carte du flop</translation>
    </message>
    <message>
        <source>Folder name:</source>
        <translation>Nom du dossier :</translation>
    </message>
    <message>
        <source>Game Settings</source>
        <translation>Réglages de jeu</translation>
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
        <translation>Tailles IP</translation>
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
        <translation>Charger</translation>
    </message>
    <message>
        <source>Load Settings Profile</source>
        <translation>Charger un profil de réglages</translation>
    </message>
    <message>
        <source>Load settings</source>
        <translation>Charger les réglages</translation>
    </message>
    <message>
        <source>Loose aggressive</source>
        <translation>Loose agressif</translation>
    </message>
    <message>
        <source>Looser reg</source>
        <translation>Reg plus loose</translation>
    </message>
    <message>
        <source>Maniac</source>
        <translation>Maniaque</translation>
    </message>
    <message>
        <source>Name this range:</source>
        <translation>Nommer cette range :</translation>
    </message>
    <message>
        <source>Nit</source>
        <translation>Nit</translation>
    </message>
    <message>
        <source>No rake</source>
        <translation>Sans rake</translation>
    </message>
    <message>
        <source>No ranges yet.</source>
        <translation>Aucune range pour l&apos;instant.</translation>
    </message>
    <message>
        <source>No saved profiles yet.</source>
        <translation>Aucun profil enregistré pour l&apos;instant.</translation>
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
        <translation>Tailles OOP</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Autres</translation>
    </message>
    <message>
        <source>Overfolder</source>
        <translation>Overfolder</translation>
    </message>
    <message>
        <source>Override</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Passive</source>
        <translation>Passif</translation>
    </message>
    <message>
        <source>Passive loose</source>
        <translation>Passif loose</translation>
    </message>
    <message>
        <source>Passive neutral</source>
        <translation>Passif neutre</translation>
    </message>
    <message>
        <source>Passive tight</source>
        <translation>Passif tight</translation>
    </message>
    <message>
        <source>Please enter a name.</source>
        <translation>Veuillez saisir un nom.</translation>
    </message>
    <message>
        <source>Please select a profile.</source>
        <translation>Veuillez choisir un profil.</translation>
    </message>
    <message>
        <source>Population Ranges</source>
        <translation>Ranges de population</translation>
    </message>
    <message>
        <source>Profile name:</source>
        <translation>Nom du profil :</translation>
    </message>
    <message>
        <source>Project Setup</source>
        <translation>Configuration du projet</translation>
    </message>
    <message>
        <source>Raise sizes (%)</source>
        <translation>Relances (%)</translation>
    </message>
    <message>
        <source>Rake (%)</source>
        <translation>Rake (%)</translation>
    </message>
    <message>
        <source>Rake Cap</source>
        <translation>Plafond de rake</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Prêt</translation>
    </message>
    <message>
        <source>River</source>
        <translation>River</translation>
    </message>
    <message>
        <source>River card</source>
        <translation>Carte de la river</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save IP range</source>
        <translation>Enregistrer la range IP</translation>
    </message>
    <message>
        <source>Save OOP range</source>
        <translation>Enregistrer la range OOP</translation>
    </message>
    <message>
        <source>Save Settings Profile</source>
        <translation>Enregistrer le profil de réglages</translation>
    </message>
    <message>
        <source>Save current range…</source>
        <translation>Enregistrer la range…</translation>
    </message>
    <message>
        <source>Save settings</source>
        <translation>Enregistrer les réglages</translation>
    </message>
    <message>
        <source>Select card</source>
        <translation>Choisir une carte</translation>
    </message>
    <message>
        <source>Setup Required</source>
        <translation>Configuration requise</translation>
    </message>
    <message>
        <source>Solve RAM: %1 required • %2 available</source>
        <translation>RAM du solve : %1 requis • %2 disponible</translation>
    </message>
    <message>
        <source>Standard LAG</source>
        <translation>LAG standard</translation>
    </message>
    <message>
        <source>Standard Ranges</source>
        <translation>Ranges standard</translation>
    </message>
    <message>
        <source>Starting Pot</source>
        <translation>Pot de départ</translation>
    </message>
    <message>
        <source>Target Exploitability (%)</source>
        <translation>Exploitabilité cible (%)</translation>
    </message>
    <message>
        <source>This cannot be undone.</source>
        <translation>Cette action est irréversible.</translation>
    </message>
    <message>
        <source>This will also delete %1 range(s). This cannot be undone.</source>
        <translation>%1 range(s) seront aussi supprimées. Cette action est irréversible.</translation>
    </message>
    <message>
        <source>Tighter reg</source>
        <translation>Reg plus tight</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Turn</translation>
    </message>
    <message>
        <source>Turn card</source>
        <translation>Carte du turn</translation>
    </message>
    <message>
        <source>Weaker regs</source>
        <translation>Regs plus faibles</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Poids</translation>
    </message>
    <message>
        <source>e.g. 30</source>
        <translation>ex. 30</translation>
    </message>
    <message>
        <source>e.g., 0</source>
        <translation>ex. : 0</translation>
    </message>
    <message>
        <source>e.g., 0.10</source>
        <translation>ex. : 0.10</translation>
    </message>
    <message>
        <source>e.g., 100</source>
        <translation>ex. : 100</translation>
    </message>
    <message>
        <source>e.g., 100bb rake-free (fast)</source>
        <translation>ex. : 100bb sans rake (rapide)</translation>
    </message>
    <message>
        <source>e.g., 5.0</source>
        <translation>ex. : 5.0</translation>
    </message>
    <message>
        <source>e.g., AA, KK, AKs, QQ+ or 50%</source>
        <translation>ex. : AA, KK, AKs, QQ+ ou 50%</translation>
    </message>
    <message>
        <source>e.g., BTN vs BB</source>
        <translation>ex. : BTN vs BB</translation>
    </message>
    <message>
        <source>e.g., BTN vs BB (default)</source>
        <translation>ex. : BTN vs BB (par défaut)</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>erreur inconnue</translation>
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
        <translation>%1 mains</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Range</translation>
    </message>
    <message>
        <source>e.g., AA, KK, AKs, QQ+ or 50%</source>
        <translation>ex. : AA, KK, AKs, QQ+ ou 50%</translation>
    </message>
</context>
<context>
    <name>ResultsPage</name>
    <message>
        <source>%1 hands</source>
        <translation>%1 mains</translation>
    </message>
    <message>
        <source>%1 options</source>
        <translation>%1 options</translation>
    </message>
    <message>
        <source>%1 shown</source>
        <translation>%1 affichés</translation>
    </message>
    <message>
        <source>%1 to act</source>
        <translation>%1 doit agir</translation>
    </message>
    <message>
        <source>0..1</source>
        <translation>0..1</translation>
    </message>
    <message>
        <source>Action Frequencies</source>
        <translation>Fréquences des actions</translation>
    </message>
    <message>
        <source>Another hand</source>
        <translation>Autre main</translation>
    </message>
    <message>
        <source>Available actions</source>
        <translation>Actions disponibles</translation>
    </message>
    <message>
        <source>Buckets</source>
        <translation>Catégories</translation>
    </message>
    <message>
        <source>Choose a role to start</source>
        <translation>Choisissez un rôle pour commencer</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Click Turn/River to change</source>
        <translation>Cliquez sur turn/river pour changer</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Correct: %1</source>
        <translation>Correct : %1</translation>
    </message>
    <message>
        <source>D</source>
        <translation>D</translation>
    </message>
    <message>
        <source>Deal %1</source>
        <translation>Donne %1</translation>
    </message>
    <message>
        <source>Drill spot</source>
        <translation>Entraîner le spot</translation>
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
        <translation>EV perdue : %1</translation>
    </message>
    <message>
        <source>EV lost: —</source>
        <translation>EV perdue : —</translation>
    </message>
    <message>
        <source>EV:</source>
        <translation>EV :</translation>
    </message>
    <message>
        <source>Exploitability</source>
        <translation>Exploitabilité</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Filtre : %1</translation>
    </message>
    <message>
        <source>Flop</source>
        <translation>Flop</translation>
    </message>
    <message>
        <source>Game Tree</source>
        <translation>Arbre de jeu</translation>
    </message>
    <message>
        <source>Hand Details</source>
        <translation>Détails de la main</translation>
    </message>
    <message>
        <source>Hand Log</source>
        <translation>Historique des mains</translation>
    </message>
    <message>
        <source>Hand details</source>
        <translation>Détails de la main</translation>
    </message>
    <message>
        <source>Hands</source>
        <translation>Mains</translation>
    </message>
    <message>
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message>
        <source>Incorrect: %1</source>
        <translation>Incorrect : %1</translation>
    </message>
    <message>
        <source>No combos match the current filters.</source>
        <translation>Aucun combo ne correspond aux filtres actuels.</translation>
    </message>
    <message>
        <source>No hand combos to display for this node.</source>
        <translation>Aucun combo à afficher pour ce nœud.</translation>
    </message>
    <message>
        <source>Node-Locking</source>
        <translation>Verrouillage de nœuds</translation>
    </message>
    <message>
        <source>Node-lock mode</source>
        <translation>Mode verrouillage</translation>
    </message>
    <message>
        <source>Node-locking is only available on decision nodes.</source>
        <translation>Le verrouillage n&apos;est possible que sur les nœuds de décision.</translation>
    </message>
    <message>
        <source>OOP</source>
        <translation>OOP</translation>
    </message>
    <message>
        <source>Play as IP</source>
        <translation>Jouer IP</translation>
    </message>
    <message>
        <source>Play as OOP</source>
        <translation>Jouer OOP</translation>
    </message>
    <message>
        <source>Play as both</source>
        <translation>Jouer les deux</translation>
    </message>
    <message>
        <source>Play vs solution</source>
        <translation>Jouer contre la solution</translation>
    </message>
    <message>
        <source>Play vs. Solution</source>
        <translation>Jouer vs solution</translation>
    </message>
    <message>
        <source>Pot</source>
        <translation>Pot</translation>
    </message>
    <message>
        <source>Rake: %1</source>
        <translation>Rake : %1</translation>
    </message>
    <message>
        <source>Rake: —</source>
        <translation>Rake : —</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Aléatoire</translation>
    </message>
    <message>
        <source>Range view</source>
        <translation>Vue range</translation>
    </message>
    <message>
        <source>Re-solve</source>
        <translation>Re-résoudre</translation>
    </message>
    <message>
        <source>Reset weights</source>
        <translation>Réinitialiser les poids</translation>
    </message>
    <message>
        <source>River</source>
        <translation>River</translation>
    </message>
    <message>
        <source>Role: %1</source>
        <translation>Rôle : %1</translation>
    </message>
    <message>
        <source>Search (JJ, 56s, JcJd, ...)</source>
        <translation>Rechercher (JJ, 56s, JcJd, ...)</translation>
    </message>
    <message>
        <source>Stack (%1)</source>
        <translation>Tapis (%1)</translation>
    </message>
    <message>
        <source>Standard mode</source>
        <translation>Mode standard</translation>
    </message>
    <message>
        <source>Stop drill</source>
        <translation>Arrêter l&apos;entraînement</translation>
    </message>
    <message>
        <source>Strategy View</source>
        <translation>Vue stratégie</translation>
    </message>
    <message>
        <source>Strategy by Hand</source>
        <translation>Stratégie par main</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>Tip: select an action above, then click a hand cell in the matrix to lock it.</source>
        <translation>Astuce : choisissez une action ci-dessus, puis cliquez sur une main de la matrice pour la verrouiller.</translation>
    </message>
    <message>
        <source>To call</source>
        <translation>À suivre</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Turn</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Poids</translation>
    </message>
    <message>
        <source>Winner: %1</source>
        <translation>Gagnant : %1</translation>
    </message>
    <message>
        <source>Won: %1</source>
        <translation>Gagné : %1</translation>
    </message>
    <message>
        <source>Won: —</source>
        <translation>Gagné : —</translation>
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
        <translation>Couleur d&apos;accent</translation>
    </message>
    <message>
        <source>Apache 2.0</source>
        <translation>Apache 2.0</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>Change the app language (takes effect immediately)</source>
        <translation>Changer la langue de l&apos;application (effet immédiat)</translation>
    </message>
    <message>
        <source>Customize the app highlight color (buttons, accents, clubs/check).</source>
        <translation>Personnaliser la couleur de mise en valeur (boutons, accents, trèfles/check).</translation>
    </message>
    <message>
        <source>Dark Mode</source>
        <translation>Mode sombre</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Licenses</source>
        <translation>Licences</translation>
    </message>
    <message>
        <source>Open licenses folder</source>
        <translation>Ouvrir le dossier des licences</translation>
    </message>
    <message>
        <source>Open notices</source>
        <translation>Ouvrir les mentions</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Valeurs par défaut</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>Enregistrer les réglages</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Langue du système</translation>
    </message>
    <message>
        <source>Third-party notices and license texts are included in the &apos;licenses&apos; folder next to the executable.</source>
        <translation>Les mentions et licences des composants tiers se trouvent dans le dossier « licenses » à côté de l&apos;exécutable.</translation>
    </message>
    <message>
        <source>Threading</source>
        <translation>Threads</translation>
    </message>
    <message>
        <source>Use dark color scheme throughout the interface</source>
        <translation>Utiliser un thème sombre dans toute l&apos;interface</translation>
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
        <translation>Board, ranges, arbre</translation>
    </message>
    <message>
        <source>Browse strategies</source>
        <translation>Parcourir les stratégies</translation>
    </message>
    <message>
        <source>Orvanthis</source>
        <translation>Orvanthis</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Accueil</translation>
    </message>
    <message>
        <source>Overview &amp; quick actions</source>
        <translation>Aperçu et actions rapides</translation>
    </message>
    <message>
        <source>Poker Solver</source>
        <translation>Solver de poker</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Résultats</translation>
    </message>
    <message>
        <source>Run solver</source>
        <translation>Lancer le solver</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Projet</translation>
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
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Compute</source>
        <translation>Calcul</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Configuration</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Commandes</translation>
    </message>
    <message>
        <source>Elapsed</source>
        <translation>Écoulé</translation>
    </message>
    <message>
        <source>Exploitability</source>
        <translation>Exploitabilité</translation>
    </message>
    <message>
        <source>Finalizing</source>
        <translation>Finalisation</translation>
    </message>
    <message>
        <source>Finalizing…</source>
        <translation>Finalisation…</translation>
    </message>
    <message>
        <source>Flop: OOP %1 | IP %2</source>
        <translation>Flop : OOP %1 | IP %2</translation>
    </message>
    <message>
        <source>IP: %1</source>
        <translation>IP : %1</translation>
    </message>
    <message>
        <source>Iteration %1 | exploitability=%2</source>
        <translation>Itération %1 | exploitabilité=%2</translation>
    </message>
    <message>
        <source>Iterations %1 • Target %2% (≈ %3) • Threads %4</source>
        <translation>Itérations %1 • Cible %2% (≈ %3) • Threads %4</translation>
    </message>
    <message>
        <source>Iterations: %1</source>
        <translation>Itérations : %1</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Max</translation>
    </message>
    <message>
        <source>Measuring...</source>
        <translation>Mesure...</translation>
    </message>
    <message>
        <source>Metrics</source>
        <translation>Mesures</translation>
    </message>
    <message>
        <source>No runs yet — click Start Solve to record a run here.</source>
        <translation>Aucun run pour l&apos;instant — cliquez sur Lancer le solve pour en enregistrer un ici.</translation>
    </message>
    <message>
        <source>OOP: %1</source>
        <translation>OOP : %1</translation>
    </message>
    <message>
        <source>Precision</source>
        <translation>Précision</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Rake: %1% (cap %2)</source>
        <translation>Rake : %1% (plafond %2)</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Prêt</translation>
    </message>
    <message>
        <source>Ready to solve</source>
        <translation>Prêt à résoudre</translation>
    </message>
    <message>
        <source>Recent Runs</source>
        <translation>Runs récents</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>Restant</translation>
    </message>
    <message>
        <source>Run the CFR solver and monitor progress in real-time.</source>
        <translation>Lancez le solver CFR et suivez la progression en temps réel.</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>En cours</translation>
    </message>
    <message>
        <source>Solve</source>
        <translation>Solve</translation>
    </message>
    <message>
        <source>Solver converged — finalizing results…</source>
        <translation>Solver convergé — finalisation des résultats…</translation>
    </message>
    <message>
        <source>Solving...</source>
        <translation>Résolution...</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Start Solve</source>
        <translation>Lancer le solve</translation>
    </message>
    <message>
        <source>Target: %1% (≈ %2)</source>
        <translation>Cible : %1% (≈ %2)</translation>
    </message>
    <message>
        <source>Threads</source>
        <translation>Threads</translation>
    </message>
    <message>
        <source>View Results →</source>
        <translation>Voir les résultats →</translation>
    </message>
    <message>
        <source>Window %1/%2</source>
        <translation>Fenêtre %1/%2</translation>
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
        <translation>Remplissez board, ranges et tailles pour activer Solve</translation>
    </message>
    <message>
        <source>Finalizing</source>
        <translation>Finalisation</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Accueil</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Prêt</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Résultats</translation>
    </message>
    <message>
        <source>Run a solve to enable Results</source>
        <translation>Lancez un solve pour activer Résultats</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Projet</translation>
    </message>
    <message>
        <source>Solve</source>
        <translation>Solve</translation>
    </message>
    <message>
        <source>Solving</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>Start a new project (or load one) from Home to enable Project</source>
        <translation>Créez un projet (ou chargez-en un) depuis Accueil pour activer Projet</translation>
    </message>
</context>
<context>
    <name>TreeNode</name>
    <message>
        <source>Deal</source>
        <translation>Donne</translation>
    </message>
    <message>
        <source>EV: %1%2</source>
        <translation>EV : %1%2</translation>
    </message>
    <message>
        <source>Freq: %1%</source>
        <translation>Fréq. : %1%</translation>
    </message>
    <message>
        <source>Pot: %1</source>
        <translation>Pot : %1</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Terminal</translation>
    </message>
</context>
</TS>
