<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
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
</TS>
