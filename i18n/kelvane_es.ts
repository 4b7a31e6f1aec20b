<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
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
        <translation>Listo</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Iniciando...</translation>
    </message>
    <message>
        <source>Not ready: enter a valid board first</source>
        <translation>No listo: introduce primero un board válido</translation>
    </message>
    <message>
        <source>Not ready: select at least one hand in both ranges</source>
        <translation>No listo: selecciona al menos una mano en ambos rangos</translation>
    </message>
    <message>
        <source>Not ready: fill out both OOP and IP sizing</source>
        <translation>No listo: completa los tamaños de apuesta de OOP e IP</translation>
    </message>
    <message>
        <source>Already running</source>
        <translation>Ya en ejecución</translation>
    </message>
    <message>
        <source>Solve failed: %1</source>
        <translation>Error al resolver: %1</translation>
    </message>
    <message>
        <source>Board %1 | iters %2 | expl≈%3 | EV(oop)=%4 EV(ip)=%5</source>
        <translation>Board %1 | iter. %2 | expl≈%3 | EV(oop)=%4 EV(ip)=%5</translation>
    </message>
    <message>
        <source>No previous solve config (solve once first)</source>
        <translation>No hay configuración previa (resuelve una vez primero)</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>Cancelando...</translation>
    </message>
    <message>
        <source>Invalid/non-local file URL</source>
        <translation>URL de archivo no válida o no local</translation>
    </message>
    <message>
        <source>Empty file path</source>
        <translation>Ruta de archivo vacía</translation>
    </message>
    <message>
        <source>Failed to open file</source>
        <translation>No se pudo abrir el archivo</translation>
    </message>
    <message>
        <source>Invalid JSON</source>
        <translation>JSON no válido</translation>
    </message>
    <message>
        <source>Unrecognized project format</source>
        <translation>Formato de proyecto no reconocido</translation>
    </message>
    <message>
        <source>Unsupported project version</source>
        <translation>Versión de proyecto no compatible</translation>
    </message>
    <message>
        <source>Loaded project (%1 strategy nodes, %2 combo nodes)</source>
        <translation>Proyecto cargado (%1 nodos de estrategia, %2 nodos de combos)</translation>
    </message>
    <message>
        <source>Failed to open file: %1</source>
        <translation>No se pudo abrir el archivo: %1</translation>
    </message>
    <message>
        <source>Failed to save file: %1</source>
        <translation>No se pudo guardar el archivo: %1</translation>
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
        <translation>aire</translation>
    </message>
    <message>
        <source>back door flush draw</source>
        <translation>proyecto de color backdoor</translation>
    </message>
    <message>
        <source>bottom pair</source>
        <translation>pareja baja</translation>
    </message>
    <message>
        <source>dry pair</source>
        <translation>pareja seca</translation>
    </message>
    <message>
        <source>flush</source>
        <translation>color</translation>
    </message>
    <message>
        <source>flush draw</source>
        <translation>proyecto de color</translation>
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
        <translation>pareja media</translation>
    </message>
    <message>
        <source>missed FD</source>
        <translation>proyecto de color fallido</translation>
    </message>
    <message>
        <source>missed OESD</source>
        <translation>OESD fallido</translation>
    </message>
    <message>
        <source>missed gutter</source>
        <translation>gutshot fallido</translation>
    </message>
    <message>
        <source>open ended straight draw</source>
        <translation>proyecto de escalera abierta</translation>
    </message>
    <message>
        <source>overpair</source>
        <translation>overpair</translation>
    </message>
    <message>
        <source>quads</source>
        <translation>póker</translation>
    </message>
    <message>
        <source>set</source>
        <translation>set</translation>
    </message>
    <message>
        <source>straight</source>
        <translation>escalera</translation>
    </message>
    <message>
        <source>straight flush</source>
        <translation>escalera de color</translation>
    </message>
    <message>
        <source>top pair</source>
        <translation>pareja alta</translation>
    </message>
    <message>
        <source>trips</source>
        <translation>trío</translation>
    </message>
    <message>
        <source>two pair</source>
        <translation>doble pareja</translation>
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
        <translation>Un solver de hold&apos;em moderno y de alto rendimiento</translation>
    </message>
    <message>
        <source>Accuracy (Today / Total)</source>
        <translation>Precisión (hoy / total)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>Abr</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>Ago</translation>
    </message>
    <message>
        <source>Avg EV Loss (Today / Total)</source>
        <translation>Pérdida media de EV (hoy / total)</translation>
    </message>
    <message>
        <source>Avg expl: %1</source>
        <translation>Expl. media: %1</translation>
    </message>
    <message>
        <source>Avg iters: %1</source>
        <translation>Iter. medias: %1</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Clear Play vs. Solution Stats</source>
        <translation>Borrar estadísticas de Jugar vs. solución</translation>
    </message>
    <message>
        <source>Clear all Play vs. Solution statistics (today + total)?</source>
        <translation>¿Borrar todas las estadísticas de Jugar vs. solución (hoy + total)?</translation>
    </message>
    <message>
        <source>Configure board, ranges, tree</source>
        <translation>Configurar board, rangos, árbol</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>Dic</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>Motor</translation>
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
        <translation>Vie</translation>
    </message>
    <message>
        <source>Hands (Today / Total)</source>
        <translation>Manos (hoy / total)</translation>
    </message>
    <message>
        <source>Import Range</source>
        <translation>Importar rango</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Jan</source>
        <translation>Ene</translation>
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
        <translation>Últimas 52 semanas (incl. días próximos)</translation>
    </message>
    <message>
        <source>Load from file</source>
        <translation>Cargar desde archivo</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>Mar</translation>
    </message>
    <message>
        <source>May</source>
        <translation>May</translation>
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
        <translation>Nuevo solve</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>Nov</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>Oct</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Abrir archivo</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Abrir proyecto</translation>
    </message>
    <message>
        <source>Play vs. Solution</source>
        <translation>Jugar vs. solución</translation>
    </message>
    <message>
        <source>Quick Actions</source>
        <translation>Acciones rápidas</translation>
    </message>
    <message>
        <source>Quick Solve</source>
        <translation>Solve rápido</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>Sáb</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save Project</source>
        <translation>Guardar proyecto</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>Sep</translation>
    </message>
    <message>
        <source>Solve Activity</source>
        <translation>Actividad de solves</translation>
    </message>
    <message>
        <source>Solves: %1</source>
        <translation>Solves: %1</translation>
    </message>
    <message>
        <source>Kelvane Project (*.kelvaneproj)</source>
        <translation>Proyecto Kelvane (*.kelvaneproj)</translation>
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
        <translation>Hilos</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Jue</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>Mar</translation>
    </message>
    <message>
        <source>Use default settings</source>
        <translation>Usar ajustes por defecto</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>Mié</translation>
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
        <translation>% del bote</translation>
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
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Add All-In</source>
        <translation>Añadir all-in</translation>
    </message>
    <message>
        <source>Add all-in if jam less than</source>
        <translation>All-in si jam menor que</translation>
    </message>
    <message>
        <source>Add folder (IP)</source>
        <translation>Añadir carpeta (IP)</translation>
    </message>
    <message>
        <source>Add folder (OOP)</source>
        <translation>Añadir carpeta (OOP)</translation>
    </message>
    <message>
        <source>Add folder…</source>
        <translation>Añadir carpeta…</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this saved profile?</source>
        <translation>¿Seguro que quieres borrar este perfil guardado?</translation>
    </message>
    <message>
        <source>Bet sizes (%)</source>
        <translation>Apuestas (%)</translation>
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
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Check back</source>
        <translation>Check back</translation>
    </message>
    <message>
        <source>Choose a saved profile:</source>
        <translation>Elige un perfil guardado:</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Clear all locally overridden population ranges for %1?</source>
        <translation>¿Borrar todos los rangos de población modificados localmente para %1?</translation>
    </message>
    <message>
        <source>Clear all locally overridden standard ranges for %1?</source>
        <translation>¿Borrar todos los rangos estándar modificados localmente para %1?</translation>
    </message>
    <message>
        <source>Clear card</source>
        <translation>Quitar carta</translation>
    </message>
    <message>
        <source>Clear overrides…</source>
        <translation>Borrar cambios…</translation>
    </message>
    <message>
        <source>Clear population overrides</source>
        <translation>Borrar cambios de población</translation>
    </message>
    <message>
        <source>Clear standard overrides</source>
        <translation>Borrar cambios estándar</translation>
    </message>
    <message>
        <source>Configure your game tree: board, ranges, and bet sizing.</source>
        <translation>Configura tu árbol de juego: board, rangos y tamaños de apuesta.</translation>
    </message>
    <message>
        <source>Continue to Solve →</source>
        <translation>Continuar al solve →</translation>
    </message>
    <message>
        <source>Custom Ranges</source>
        <translation>Rangos propios</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Delete range</source>
        <translation>Eliminar rango</translation>
    </message>
    <message>
        <source>Delete selected…</source>
        <translation>Eliminar selección…</translation>
    </message>
    <message>
        <source>Delete settings profile</source>
        <translation>Eliminar perfil de ajustes</translation>
    </message>
    <message>
        <source>Don&apos;t donk</source>
        <translation>Sin donk</translation>
    </message>
    <message>
        <source>Effective Stack</source>
        <translation>Stack efectivo</translation>
    </message>
    <message>
        <source>Export Population Ranges</source>
        <translation>Exportar rangos de población</translation>
    </message>
    <message>
        <source>Export Standard Ranges</source>
        <translation>Exportar rangos estándar</translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>Error al exportar: %1</translation>
    </message>
    <message>
        <source>Export failed: appController.saveTextFile unavailable.</source>
        <translation>Error al exportar: appController.saveTextFile no disponible.</translation>
    </message>
    <message>
        <source>Export population…</source>
        <translation>Exportar población…</translation>
    </message>
    <message>
        <source>Export standard…</source>
        <translation>Exportar estándar…</translation>
    </message>
    <message>
        <source>Extreme loose</source>
        <translation>Muy loose</translation>
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
        <translation>Nombre de la carpeta:</translation>
    </message>
    <message>
        <source>Game Settings</source>
        <translation>Ajustes de juego</translation>
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
        <translation>Rango IP</translation>
    </message>
    <message>
        <source>IP Sizing</source>
        <translation>Tamaños IP</translation>
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
        <translation>Cargar</translation>
    </message>
    <message>
        <source>Load Settings Profile</source>
        <translation>Cargar perfil de ajustes</translation>
    </message>
    <message>
        <source>Load settings</source>
        <translation>Cargar ajustes</translation>
    </message>
    <message>
        <source>Loose aggressive</source>
        <translation>Loose agresivo</translation>
    </message>
    <message>
        <source>Looser reg</source>
        <translation>Reg más loose</translation>
    </message>
    <message>
        <source>Maniac</source>
        <translation>Maníaco</translation>
    </message>
    <message>
        <source>Name this range:</source>
        <translation>Nombre del rango:</translation>
    </message>
    <message>
        <source>Nit</source>
        <translation>Nit</translation>
    </message>
    <message>
        <source>No rake</source>
        <translation>Sin rake</translation>
    </message>
    <message>
        <source>No ranges yet.</source>
        <translation>Aún no hay rangos.</translation>
    </message>
    <message>
        <source>No saved profiles yet.</source>
        <translation>Aún no hay perfiles guardados.</translation>
    </message>
    <message>
        <source>OOP</source>
        <translation>OOP</translation>
    </message>
    <message>
        <source>OOP Range</source>
        <translation>Rango OOP</translation>
    </message>
    <message>
        <source>OOP Sizing</source>
        <translation>Tamaños OOP</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Otros</translation>
    </message>
    <message>
        <source>Overfolder</source>
        <translation>Overfolder</translation>
    </message>
    <message>
        <source>Override</source>
        <translation>Sobrescribir</translation>
    </message>
    <message>
        <source>Passive</source>
        <translation>Pasivo</translation>
    </message>
    <message>
        <source>Passive loose</source>
        <translation>Pasivo loose</translation>
    </message>
    <message>
        <source>Passive neutral</source>
        <translation>Pasivo neutral</translation>
    </message>
    <message>
        <source>Passive tight</source>
        <translation>Pasivo tight</translation>
    </message>
    <message>
        <source>Please enter a name.</source>
        <translation>Introduce un nombre.</translation>
    </message>
    <message>
        <source>Please select a profile.</source>
        <translation>Selecciona un perfil.</translation>
    </message>
    <message>
        <source>Population Ranges</source>
        <translation>Rangos de población</translation>
    </message>
    <message>
        <source>Profile name:</source>
        <translation>Nombre del perfil:</translation>
    </message>
    <message>
        <source>Project Setup</source>
        <translation>Configuración del proyecto</translation>
    </message>
    <message>
        <source>Raise sizes (%)</source>
        <translation>Subidas (%)</translation>
    </message>
    <message>
        <source>Rake (%)</source>
        <translation>Rake (%)</translation>
    </message>
    <message>
        <source>Rake Cap</source>
        <translation>Tope de rake</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Listo</translation>
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
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save IP range</source>
        <translation>Guardar rango IP</translation>
    </message>
    <message>
        <source>Save OOP range</source>
        <translation>Guardar rango OOP</translation>
    </message>
    <message>
        <source>Save Settings Profile</source>
        <translation>Guardar perfil de ajustes</translation>
    </message>
    <message>
        <source>Save current range…</source>
        <translation>Guardar rango actual…</translation>
    </message>
    <message>
        <source>Save settings</source>
        <translation>Guardar ajustes</translation>
    </message>
    <message>
        <source>Select card</source>
        <translation>Elegir carta</translation>
    </message>
    <message>
        <source>Setup Required</source>
        <translation>Configuración necesaria</translation>
    </message>
    <message>
        <source>Solve RAM: %1 required • %2 available</source>
        <translation>RAM del solve: %1 necesaria • %2 disponible</translation>
    </message>
    <message>
        <source>Standard LAG</source>
        <translation>LAG estándar</translation>
    </message>
    <message>
        <source>Standard Ranges</source>
        <translation>Rangos estándar</translation>
    </message>
    <message>
        <source>Starting Pot</source>
        <translation>Bote inicial</translation>
    </message>
    <message>
        <source>Target Exploitability (%)</source>
        <translation>Explotabilidad objetivo (%)</translation>
    </message>
    <message>
        <source>This cannot be undone.</source>
        <translation>Esto no se puede deshacer.</translation>
    </message>
    <message>
        <source>This will also delete %1 range(s). This cannot be undone.</source>
        <translation>También se borrarán %1 rango(s). Esto no se puede deshacer.</translation>
    </message>
    <message>
        <source>Tighter reg</source>
        <translation>Reg más tight</translation>
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
        <translation>Regs más débiles</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Peso</translation>
    </message>
    <message>
        <source>e.g. 30</source>
        <translation>p. ej. 30</translation>
    </message>
    <message>
        <source>e.g., 0</source>
        <translation>p. ej., 0</translation>
    </message>
    <message>
        <source>e.g., 0.10</source>
        <translation>p. ej., 0.10</translation>
    </message>
    <message>
        <source>e.g., 100</source>
        <translation>p. ej., 100</translation>
    </message>
    <message>
        <source>e.g., 100bb rake-free (fast)</source>
        <translation>p. ej., 100bb sin rake (rápido)</translation>
    </message>
    <message>
        <source>e.g., 5.0</source>
        <translation>p. ej., 5.0</translation>
    </message>
    <message>
        <source>e.g., AA, KK, AKs, QQ+ or 50%</source>
        <translation>p. ej., AA, KK, AKs, QQ+ o 50%</translation>
    </message>
    <message>
        <source>e.g., BTN vs BB</source>
        <translation>p. ej., BTN vs BB</translation>
    </message>
    <message>
        <source>e.g., BTN vs BB (default)</source>
        <translation>p. ej., BTN vs BB (por defecto)</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>error desconocido</translation>
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
        <translation>%1 manos</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Rango</translation>
    </message>
    <message>
        <source>e.g., AA, KK, AKs, QQ+ or 50%</source>
        <translation>p. ej., AA, KK, AKs, QQ+ o 50%</translation>
    </message>
</context>
<context>
    <name>ResultsPage</name>
    <message>
        <source>%1 hands</source>
        <translation>%1 manos</translation>
    </message>
    <message>
        <source>%1 options</source>
        <translation>%1 opciones</translation>
    </message>
    <message>
        <source>%1 shown</source>
        <translation>%1 mostrados</translation>
    </message>
    <message>
        <source>%1 to act</source>
        <translation>Actúa %1</translation>
    </message>
    <message>
        <source>0..1</source>
        <translation>0..1</translation>
    </message>
    <message>
        <source>Action Frequencies</source>
        <translation>Frecuencias de acción</translation>
    </message>
    <message>
        <source>Another hand</source>
        <translation>Otra mano</translation>
    </message>
    <message>
        <source>Available actions</source>
        <translation>Acciones disponibles</translation>
    </message>
    <message>
        <source>Buckets</source>
        <translation>Categorías</translation>
    </message>
    <message>
        <source>Choose a role to start</source>
        <translation>Elige un rol para empezar</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Click Turn/River to change</source>
        <translation>Haz clic en turn/river para cambiar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Correct: %1</source>
        <translation>Correctas: %1</translation>
    </message>
    <message>
        <source>D</source>
        <translation>D</translation>
    </message>
    <message>
        <source>Deal %1</source>
        <translation>Reparto %1</translation>
    </message>
    <message>
        <source>Drill spot</source>
        <translation>Entrenar spot</translation>
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
        <translation>EV perdido: %1</translation>
    </message>
    <message>
        <source>EV lost: —</source>
        <translation>EV perdido: —</translation>
    </message>
    <message>
        <source>EV:</source>
        <translation>EV:</translation>
    </message>
    <message>
        <source>Exploitability</source>
        <translation>Explotabilidad</translation>
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
        <translation>Árbol de juego</translation>
    </message>
    <message>
        <source>Hand Details</source>
        <translation>Detalles de la mano</translation>
    </message>
    <message>
        <source>Hand Log</source>
        <translation>Historial de manos</translation>
    </message>
    <message>
        <source>Hand details</source>
        <translation>Detalles de la mano</translation>
    </message>
    <message>
        <source>Hands</source>
        <translation>Manos</translation>
    </message>
    <message>
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message>
        <source>Incorrect: %1</source>
        <translation>Incorrectas: %1</translation>
    </message>
    <message>
        <source>No combos match the current filters.</source>
        <translation>Ningún combo coincide con los filtros actuales.</translation>
    </message>
    <message>
        <source>No hand combos to display for this node.</source>
        <translation>No hay combos que mostrar en este nodo.</translation>
    </message>
    <message>
        <source>Node-Locking</source>
        <translation>Bloqueo de nodos</translation>
    </message>
    <message>
        <source>Node-lock mode</source>
        <translation>Modo de bloqueo</translation>
    </message>
    <message>
        <source>Node-locking is only available on decision nodes.</source>
        <translation>El bloqueo de nodos solo está disponible en nodos de decisión.</translation>
    </message>
    <message>
        <source>OOP</source>
        <translation>OOP</translation>
    </message>
    <message>
        <source>Play as IP</source>
        <translation>Jugar como IP</translation>
    </message>
    <message>
        <source>Play as OOP</source>
        <translation>Jugar como OOP</translation>
    </message>
    <message>
        <source>Play as both</source>
        <translation>Jugar ambos</translation>
    </message>
    <message>
        <source>Play vs solution</source>
        <translation>Jugar contra la solución</translation>
    </message>
    <message>
        <source>Play vs. Solution</source>
        <translation>Jugar vs. solución</translation>
    </message>
    <message>
        <source>Pot</source>
        <translation>Bote</translation>
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
        <translation>Aleatoria</translation>
    </message>
    <message>
        <source>Range view</source>
        <translation>Vista de rango</translation>
    </message>
    <message>
        <source>Re-solve</source>
        <translation>Volver a resolver</translation>
    </message>
    <message>
        <source>Reset weights</source>
        <translation>Restablecer pesos</translation>
    </message>
    <message>
        <source>River</source>
        <translation>River</translation>
    </message>
    <message>
        <source>Role: %1</source>
        <translation>Rol: %1</translation>
    </message>
    <message>
        <source>Search (JJ, 56s, JcJd, ...)</source>
        <translation>Buscar (JJ, 56s, JcJd, ...)</translation>
    </message>
    <message>
        <source>Stack (%1)</source>
        <translation>Stack (%1)</translation>
    </message>
    <message>
        <source>Standard mode</source>
        <translation>Modo estándar</translation>
    </message>
    <message>
        <source>Stop drill</source>
        <translation>Parar entreno</translation>
    </message>
    <message>
        <source>Strategy View</source>
        <translation>Vista de estrategia</translation>
    </message>
    <message>
        <source>Strategy by Hand</source>
        <translation>Estrategia por mano</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>Tip: select an action above, then click a hand cell in the matrix to lock it.</source>
        <translation>Consejo: elige una acción arriba y luego haz clic en una mano de la matriz para bloquearla.</translation>
    </message>
    <message>
        <source>To call</source>
        <translation>Para pagar</translation>
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
        <translation>Ganador: %1</translation>
    </message>
    <message>
        <source>Won: %1</source>
        <translation>Ganado: %1</translation>
    </message>
    <message>
        <source>Won: —</source>
        <translation>Ganado: —</translation>
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
        <translation>Color de acento</translation>
    </message>
    <message>
        <source>Apache 2.0</source>
        <translation>Apache 2.0</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apariencia</translation>
    </message>
    <message>
        <source>Change the app language (takes effect immediately)</source>
        <translation>Cambia el idioma de la app (se aplica al instante)</translation>
    </message>
    <message>
        <source>Customize the app highlight color (buttons, accents, clubs/check).</source>
        <translation>Personaliza el color de resaltado de la app (botones, acentos, tréboles/check).</translation>
    </message>
    <message>
        <source>Dark Mode</source>
        <translation>Modo oscuro</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Licenses</source>
        <translation>Licencias</translation>
    </message>
    <message>
        <source>Open licenses folder</source>
        <translation>Abrir carpeta de licencias</translation>
    </message>
    <message>
        <source>Open notices</source>
        <translation>Abrir avisos</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Restablecer valores</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>Guardar ajustes</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Predeterminado del sistema</translation>
    </message>
    <message>
        <source>Third-party notices and license texts are included in the &apos;licenses&apos; folder next to the executable.</source>
        <translation>Los avisos y textos de licencia de terceros están en la carpeta &apos;licenses&apos;, junto al ejecutable.</translation>
    </message>
    <message>
        <source>Threading</source>
        <translation>Hilos</translation>
    </message>
    <message>
        <source>Use dark color scheme throughout the interface</source>
        <translation>Usar un esquema de color oscuro en toda la interfaz</translation>
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
        <translation>Board, rangos, árbol</translation>
    </message>
    <message>
        <source>Browse strategies</source>
        <translation>Explorar estrategias</translation>
    </message>
    <message>
        <source>Orvanthis</source>
        <translation>Orvanthis</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Overview &amp; quick actions</source>
        <translation>Resumen y acciones rápidas</translation>
    </message>
    <message>
        <source>Poker Solver</source>
        <translation>Solver de póker</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Resultados</translation>
    </message>
    <message>
        <source>Run solver</source>
        <translation>Ejecutar solver</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Configurar</translation>
    </message>
    <message>
        <source>Solve</source>
        <translation>Resolver</translation>
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
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Compute</source>
        <translation>Cálculo</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Controles</translation>
    </message>
    <message>
        <source>Elapsed</source>
        <translation>Transcurrido</translation>
    </message>
    <message>
        <source>Exploitability</source>
        <translation>Explotabilidad</translation>
    </message>
    <message>
        <source>Finalizing</source>
        <translation>Finalizando</translation>
    </message>
    <message>
        <source>Finalizing…</source>
        <translation>Finalizando…</translation>
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
        <translation>Iteración %1 | explotabilidad=%2</translation>
    </message>
    <message>
        <source>Iterations %1 • Target %2% (≈ %3) • Threads %4</source>
        <translation>Iteraciones %1 • Objetivo %2% (≈ %3) • Hilos %4</translation>
    </message>
    <message>
        <source>Iterations: %1</source>
        <translation>Iteraciones: %1</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Máx.</translation>
    </message>
    <message>
        <source>Measuring...</source>
        <translation>Midiendo...</translation>
    </message>
    <message>
        <source>Metrics</source>
        <translation>Métricas</translation>
    </message>
    <message>
        <source>No runs yet — click Start Solve to record a run here.</source>
        <translation>Aún no hay ejecuciones — pulsa Iniciar solve para registrar una aquí.</translation>
    </message>
    <message>
        <source>OOP: %1</source>
        <translation>OOP: %1</translation>
    </message>
    <message>
        <source>Precision</source>
        <translation>Precisión</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Rake: %1% (cap %2)</source>
        <translation>Rake: %1% (tope %2)</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Ready to solve</source>
        <translation>Listo para resolver</translation>
    </message>
    <message>
        <source>Recent Runs</source>
        <translation>Ejecuciones recientes</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>Restante</translation>
    </message>
    <message>
        <source>Run the CFR solver and monitor progress in real-time.</source>
        <translation>Ejecuta el solver CFR y sigue el progreso en tiempo real.</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>En curso</translation>
    </message>
    <message>
        <source>Solve</source>
        <translation>Resolver</translation>
    </message>
    <message>
        <source>Solver converged — finalizing results…</source>
        <translation>Solver convergido — finalizando resultados…</translation>
    </message>
    <message>
        <source>Solving...</source>
        <translation>Resolviendo...</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Start Solve</source>
        <translation>Iniciar solve</translation>
    </message>
    <message>
        <source>Target: %1% (≈ %2)</source>
        <translation>Objetivo: %1% (≈ %2)</translation>
    </message>
    <message>
        <source>Threads</source>
        <translation>Hilos</translation>
    </message>
    <message>
        <source>View Results →</source>
        <translation>Ver resultados →</translation>
    </message>
    <message>
        <source>Window %1/%2</source>
        <translation>Ventana %1/%2</translation>
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
        <translation>Completa board, rangos y tamaños para activar Resolver</translation>
    </message>
    <message>
        <source>Finalizing</source>
        <translation>Finalizando</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Resultados</translation>
    </message>
    <message>
        <source>Run a solve to enable Results</source>
        <translation>Haz un solve para activar Resultados</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Configurar</translation>
    </message>
    <message>
        <source>Solve</source>
        <translation>Resolver</translation>
    </message>
    <message>
        <source>Solving</source>
        <translation>Resolviendo</translation>
    </message>
    <message>
        <source>Start a new project (or load one) from Home to enable Project</source>
        <translation>Crea un proyecto nuevo (o carga uno) desde Inicio para activar Proyecto</translation>
    </message>
</context>
<context>
    <name>TreeNode</name>
    <message>
        <source>Deal</source>
        <translation>Reparto</translation>
    </message>
    <message>
        <source>EV: %1%2</source>
        <translation>EV: %1%2</translation>
    </message>
    <message>
        <source>Freq: %1%</source>
        <translation>Frec.: %1%</translation>
    </message>
    <message>
        <source>Pot: %1</source>
        <translation>Bote: %1</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Terminal</translation>
    </message>
</context>
</TS>
