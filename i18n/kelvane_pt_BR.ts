<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>AppController</name>
    <message>
        <source>Ready</source>
        <translation>Pronto</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Iniciando...</translation>
    </message>
    <message>
        <source>Not ready: enter a valid board first</source>
        <translation>Não está pronto: insira primeiro um board válido</translation>
    </message>
    <message>
        <source>Not ready: select at least one hand in both ranges</source>
        <translation>Não está pronto: selecione pelo menos uma mão nos dois ranges</translation>
    </message>
    <message>
        <source>Not ready: fill out both OOP and IP sizing</source>
        <translation>Não está pronto: preencha os tamanhos de aposta de OOP e IP</translation>
    </message>
    <message>
        <source>Already running</source>
        <translation>Já em execução</translation>
    </message>
    <message>
        <source>Solve failed: %1</source>
        <translation>Falha ao resolver: %1</translation>
    </message>
    <message>
        <source>Board %1 | iters %2 | expl≈%3 | EV(oop)=%4 EV(ip)=%5</source>
        <translation>Board %1 | iter. %2 | expl≈%3 | EV(oop)=%4 EV(ip)=%5</translation>
    </message>
    <message>
        <source>No previous solve config (solve once first)</source>
        <translation>Nenhuma configuração anterior (resolva uma vez primeiro)</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>Cancelando...</translation>
    </message>
    <message>
        <source>Invalid/non-local file URL</source>
        <translation>URL de arquivo inválida ou não local</translation>
    </message>
    <message>
        <source>Empty file path</source>
        <translation>Caminho de arquivo vazio</translation>
    </message>
    <message>
        <source>Failed to open file</source>
        <translation>Falha ao abrir o arquivo</translation>
    </message>
    <message>
        <source>Invalid JSON</source>
        <translation>JSON inválido</translation>
    </message>
    <message>
        <source>Unrecognized project format</source>
        <translation>Formato de projeto não reconhecido</translation>
    </message>
    <message>
        <source>Unsupported project version</source>
        <translation>Versão de projeto não suportada</translation>
    </message>
    <message>
        <source>Loaded project (%1 strategy nodes, %2 combo nodes)</source>
        <translation>Projeto carregado (%1 nós de estratégia, %2 nós de combos)</translation>
    </message>
    <message>
        <source>Failed to open file: %1</source>
        <translation>Falha ao abrir o arquivo: %1</translation>
    </message>
    <message>
        <source>Failed to save file: %1</source>
        <translation>Falha ao salvar o arquivo: %1</translation>
    </message>
</context>
<context>
    <name>HandBuckets</name>
    <message>
        <source>air</source>
        <translation>ar</translation>
    </message>
    <message>
        <source>back door flush draw</source>
        <translation>flush draw backdoor</translation>
    </message>
    <message>
        <source>bottom pair</source>
        <translation>par baixo</translation>
    </message>
    <message>
        <source>dry pair</source>
        <translation>par seco</translation>
    </message>
    <message>
        <source>flush</source>
        <translation>flush</translation>
    </message>
    <message>
        <source>flush draw</source>
        <translation>flush draw</translation>
    </message>
    <message>
        <source>full house</source>
        <translation>full house</translation>
    </message>
    <message>
        <source>gutter</source>
        <translation>gutshot</translation>
    </message>
    <message>
        <source>middle pair</source>
        <translation>par do meio</translation>
    </message>
    <message>
        <source>missed FD</source>
        <translation>flush draw perdido</translation>
    </message>
    <message>
        <source>missed OESD</source>
        <translation>OESD perdido</translation>
    </message>
    <message>
        <source>missed gutter</source>
        <translation>gutshot perdido</translation>
    </message>
    <message>
        <source>open ended straight draw</source>
        <translation>draw de sequência aberta</translation>
    </message>
    <message>
        <source>overpair</source>
        <translation>overpair</translation>
    </message>
    <message>
        <source>quads</source>
        <translation>quadra</translation>
    </message>
    <message>
        <source>set</source>
        <translation>set</translation>
    </message>
    <message>
        <source>straight</source>
        <translation>sequência</translation>
    </message>
    <message>
        <source>straight flush</source>
        <translation>straight flush</translation>
    </message>
    <message>
        <source>top pair</source>
        <translation>par alto</translation>
    </message>
    <message>
        <source>trips</source>
        <translation>trinca</translation>
    </message>
    <message>
        <source>two pair</source>
        <translation>dois pares</translation>
    </message>
</context>
</TS>
