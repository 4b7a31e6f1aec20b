<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
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
        <translation>%1% de equity</translation>
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
<context>
    <name>HomePage</name>
    <message>
        <source> (future)</source>
        <translation> (futuro)</translation>
    </message>
    <message>
        <source>%1 (%2 free)</source>
        <translation>%1 (%2 livre)</translation>
    </message>
    <message>
        <source>%1 available</source>
        <translation>%1 disponível</translation>
    </message>
    <message>
        <source>%1%2</source>
        <translation>%1%2</translation>
    </message>
    <message>
        <source>A modern, high-performance holdem solver</source>
        <translation>Um solver de hold&apos;em moderno e de alto desempenho</translation>
    </message>
    <message>
        <source>Accuracy (Today / Total)</source>
        <translation>Precisão (hoje / total)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Todos os arquivos (*)</translation>
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
        <translation>Perda média de EV (hoje / total)</translation>
    </message>
    <message>
        <source>Avg expl: %1</source>
        <translation>Expl. média: %1</translation>
    </message>
    <message>
        <source>Avg iters: %1</source>
        <translation>Iter. médias: %1</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>Clear Play vs. Solution Stats</source>
        <translation>Limpar estatísticas de Jogar vs. solução</translation>
    </message>
    <message>
        <source>Clear all Play vs. Solution statistics (today + total)?</source>
        <translation>Limpar todas as estatísticas de Jogar vs. solução (hoje + total)?</translation>
    </message>
    <message>
        <source>Configure board, ranges, tree</source>
        <translation>Configurar board, ranges, árvore</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>Dez</translation>
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
        <translation>Fev</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>Sex</translation>
    </message>
    <message>
        <source>Hands (Today / Total)</source>
        <translation>Mãos (hoje / total)</translation>
    </message>
    <message>
        <source>Import Range</source>
        <translation>Importar range</translation>
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
        <translation>Últimas 52 semanas (incl. próximos dias)</translation>
    </message>
    <message>
        <source>Load from file</source>
        <translation>Carregar de arquivo</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>Mar</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mai</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memória</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>Seg</translation>
    </message>
    <message>
        <source>New Solve</source>
        <translation>Novo solve</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>Nov</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>Out</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Abrir arquivo</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Abrir projeto</translation>
    </message>
    <message>
        <source>Play vs. Solution</source>
        <translation>Jogar vs. solução</translation>
    </message>
    <message>
        <source>Quick Actions</source>
        <translation>Ações rápidas</translation>
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
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Save Project</source>
        <translation>Salvar projeto</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>Set</translation>
    </message>
    <message>
        <source>Solve Activity</source>
        <translation>Atividade de solves</translation>
    </message>
    <message>
        <source>Solves: %1</source>
        <translation>Solves: %1</translation>
    </message>
    <message>
        <source>Kelvane Project (*.kelvaneproj)</source>
        <translation>Projeto Kelvane (*.kelvaneproj)</translation>
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
        <translation>Threads</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Qui</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>Ter</translation>
    </message>
    <message>
        <source>Use default settings</source>
        <translation>Usar configurações padrão</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>Qua</translation>
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
        <translation>% do pote</translation>
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
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>Add All-In</source>
        <translation>Adicionar all-in</translation>
    </message>
    <message>
        <source>Add all-in if jam less than</source>
        <translation>All-in se jam menor que</translation>
    </message>
    <message>
        <source>Add folder (IP)</source>
        <translation>Adicionar pasta (IP)</translation>
    </message>
    <message>
        <source>Add folder (OOP)</source>
        <translation>Adicionar pasta (OOP)</translation>
    </message>
    <message>
        <source>Add folder…</source>
        <translation>Adicionar pasta…</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Todos os arquivos (*)</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this saved profile?</source>
        <translation>Tem certeza de que deseja excluir este perfil salvo?</translation>
    </message>
    <message>
        <source>Bet sizes (%)</source>
        <translation>Apostas (%)</translation>
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
        <translation>Escolha um perfil salvo:</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>Clear all locally overridden population ranges for %1?</source>
        <translation>Limpar todos os ranges de população alterados localmente para %1?</translation>
    </message>
    <message>
        <source>Clear all locally overridden standard ranges for %1?</source>
        <translation>Limpar todos os ranges padrão alterados localmente para %1?</translation>
    </message>
    <message>
        <source>Clear card</source>
        <translation>Remover carta</translation>
    </message>
    <message>
        <source>Clear overrides…</source>
        <translation>Limpar alterações…</translation>
    </message>
    <message>
        <source>Clear population overrides</source>
        <translation>Limpar alterações de população</translation>
    </message>
    <message>
        <source>Clear standard overrides</source>
        <translation>Limpar alterações padrão</translation>
    </message>
    <message>
        <source>Configure your game tree: board, ranges, and bet sizing.</source>
        <translation>Configure sua árvore de jogo: board, ranges e tamanhos de aposta.</translation>
    </message>
    <message>
        <source>Continue to Solve →</source>
        <translation>Continuar para o solve →</translation>
    </message>
    <message>
        <source>Custom Ranges</source>
        <translation>Ranges próprios</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>Delete range</source>
        <translation>Excluir range</translation>
    </message>
    <message>
        <source>Delete selected…</source>
        <translation>Excluir selecionados…</translation>
    </message>
    <message>
        <source>Delete settings profile</source>
        <translation>Excluir perfil de configurações</translation>
    </message>
    <message>
        <source>Don&apos;t donk</source>
        <translation>Sem donk</translation>
    </message>
    <message>
        <source>Effective Stack</source>
        <translation>Stack efetivo</translation>
    </message>
    <message>
        <source>Export Population Ranges</source>
        <translation>Exportar ranges de população</translation>
    </message>
    <message>
        <source>Export Standard Ranges</source>
        <translation>Exportar ranges padrão</translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>Falha ao exportar: %1</translation>
    </message>
    <message>
        <source>Export failed: appController.saveTextFile unavailable.</source>
        <translation>Falha ao exportar: appController.saveTextFile indisponível.</translation>
    </message>
    <message>
        <source>Export population…</source>
        <translation>Exportar população…</translation>
    </message>
    <message>
        <source>Export standard…</source>
        <translation>Exportar padrão…</translation>
    </message>
    <message>
        <source>Extreme loose</source>
        <translation>Extremamente loose</translation>
    </message>
    <message>
        <source>Flop</source>
        <translation>Flop</translation>
    </message>
    <message>
        <source>Flop card</source>
        <translation>Carta do flop</translation>
    </message>
    <message>
        <source>Folder name:</source>
        <translation>Nome da pasta:</translation>
    </message>
    <message>
        <source>Game Settings</source>
        <translation>Configurações de jogo</translation>
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
        <translation>Tamanhos IP</translation>
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
        <translation>Carregar</translation>
    </message>
    <message>
        <source>Load Settings Profile</source>
        <translation>Carregar perfil de configurações</translation>
    </message>
    <message>
        <source>Load settings</source>
        <translation>Carregar configurações</translation>
    </message>
    <message>
        <source>Loose aggressive</source>
        <translation>Loose agressivo</translation>
    </message>
    <message>
        <source>Looser reg</source>
        <translation>Reg mais loose</translation>
    </message>
    <message>
        <source>Maniac</source>
        <translation>Maníaco</translation>
    </message>
    <message>
        <source>Name this range:</source>
        <translation>Nome deste range:</translation>
    </message>
    <message>
        <source>Nit</source>
        <translation>Nit</translation>
    </message>
    <message>
        <source>No rake</source>
        <translation>Sem rake</translation>
    </message>
    <message>
        <source>No ranges yet.</source>
        <translation>Nenhum range ainda.</translation>
    </message>
    <message>
        <source>No saved profiles yet.</source>
        <translation>Nenhum perfil salvo ainda.</translation>
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
        <translation>Tamanhos OOP</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Outros</translation>
    </message>
    <message>
        <source>Overfolder</source>
        <translation>Overfolder</translation>
    </message>
    <message>
        <source>Override</source>
        <translation>Substituir</translation>
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
        <translation>Digite um nome.</translation>
    </message>
    <message>
        <source>Please select a profile.</source>
        <translation>Selecione um perfil.</translation>
    </message>
    <message>
        <source>Population Ranges</source>
        <translation>Ranges de população</translation>
    </message>
    <message>
        <source>Profile name:</source>
        <translation>Nome do perfil:</translation>
    </message>
    <message>
        <source>Project Setup</source>
        <translation>Configuração do projeto</translation>
    </message>
    <message>
        <source>Raise sizes (%)</source>
        <translation>Raises (%)</translation>
    </message>
    <message>
        <source>Rake (%)</source>
        <translation>Rake (%)</translation>
    </message>
    <message>
        <source>Rake Cap</source>
        <translation>Teto de rake</translation>
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
        <translation>Carta do river</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Save IP range</source>
        <translation>Salvar range IP</translation>
    </message>
    <message>
        <source>Save OOP range</source>
        <translation>Salvar range OOP</translation>
    </message>
    <message>
        <source>Save Settings Profile</source>
        <translation>Salvar perfil de configurações</translation>
    </message>
    <message>
        <source>Save current range…</source>
        <translation>Salvar range atual…</translation>
    </message>
    <message>
        <source>Save settings</source>
        <translation>Salvar configurações</translation>
    </message>
    <message>
        <source>Select card</source>
        <translation>Escolher carta</translation>
    </message>
    <message>
        <source>Setup Required</source>
        <translation>Configuração necessária</translation>
    </message>
    <message>
        <source>Solve RAM: %1 required • %2 available</source>
        <translation>RAM do solve: %1 necessária • %2 disponível</translation>
    </message>
    <message>
        <source>Standard LAG</source>
        <translation>LAG padrão</translation>
    </message>
    <message>
        <source>Standard Ranges</source>
        <translation>Ranges padrão</translation>
    </message>
    <message>
        <source>Starting Pot</source>
        <translation>Pote inicial</translation>
    </message>
    <message>
        <source>Target Exploitability (%)</source>
        <translation>Explorabilidade alvo (%)</translation>
    </message>
    <message>
        <source>This cannot be undone.</source>
        <translation>Não é possível desfazer.</translation>
    </message>
    <message>
        <source>This will also delete %1 range(s). This cannot be undone.</source>
        <translation>Também serão excluídos %1 range(s). Não é possível desfazer.</translation>
    </message>
    <message>
        <source>Tighter reg</source>
        <translation>Reg mais tight</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Turn</translation>
    </message>
    <message>
        <source>Turn card</source>
        <translation>Carta do turn</translation>
    </message>
    <message>
        <source>Weaker regs</source>
        <translation>Regs mais fracos</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Peso</translation>
    </message>
    <message>
        <source>e.g. 30</source>
        <translation>ex.: 30</translation>
    </message>
    <message>
        <source>e.g., 0</source>
        <translation>ex.: 0</translation>
    </message>
    <message>
        <source>e.g., 0.10</source>
        <translation>ex.: 0.10</translation>
    </message>
    <message>
        <source>e.g., 100</source>
        <translation>ex.: 100</translation>
    </message>
    <message>
        <source>e.g., 100bb rake-free (fast)</source>
        <translation>ex.: 100bb sem rake (rápido)</translation>
    </message>
    <message>
        <source>e.g., 5.0</source>
        <translation>ex.: 5.0</translation>
    </message>
    <message>
        <source>e.g., AA, KK, AKs, QQ+ or 50%</source>
        <translation>ex.: AA, KK, AKs, QQ+ ou 50%</translation>
    </message>
    <message>
        <source>e.g., BTN vs BB</source>
        <translation>ex.: BTN vs BB</translation>
    </message>
    <message>
        <source>e.g., BTN vs BB (default)</source>
        <translation>ex.: BTN vs BB (padrão)</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>erro desconhecido</translation>
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
        <translation>%1 mãos</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Range</translation>
    </message>
    <message>
        <source>e.g., AA, KK, AKs, QQ+ or 50%</source>
        <translation>ex.: AA, KK, AKs, QQ+ ou 50%</translation>
    </message>
</context>
<context>
    <name>ResultsPage</name>
    <message>
        <source>%1 hands</source>
        <translation>%1 mãos</translation>
    </message>
    <message>
        <source>%1 options</source>
        <translation>%1 opções</translation>
    </message>
    <message>
        <source>%1 shown</source>
        <translation>%1 exibidos</translation>
    </message>
    <message>
        <source>%1 to act</source>
        <translation>%1 age</translation>
    </message>
    <message>
        <source>0..1</source>
        <translation>0..1</translation>
    </message>
    <message>
        <source>Action Frequencies</source>
        <translation>Frequências das ações</translation>
    </message>
    <message>
        <source>Another hand</source>
        <translation>Outra mão</translation>
    </message>
    <message>
        <source>Available actions</source>
        <translation>Ações disponíveis</translation>
    </message>
    <message>
        <source>Buckets</source>
        <translation>Categorias</translation>
    </message>
    <message>
        <source>Choose a role to start</source>
        <translation>Escolha um papel para começar</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>Click Turn/River to change</source>
        <translation>Clique em turn/river para trocar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Correct: %1</source>
        <translation>Corretas: %1</translation>
    </message>
    <message>
        <source>D</source>
        <translation>D</translation>
    </message>
    <message>
        <source>Deal %1</source>
        <translation>Distribuir %1</translation>
    </message>
    <message>
        <source>Drill spot</source>
        <translation>Treinar spot</translation>
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
        <translation>Explorabilidade</translation>
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
        <translation>Árvore de jogo</translation>
    </message>
    <message>
        <source>Hand Details</source>
        <translation>Detalhes da mão</translation>
    </message>
    <message>
        <source>Hand Log</source>
        <translation>Histórico de mãos</translation>
    </message>
    <message>
        <source>Hand details</source>
        <translation>Detalhes da mão</translation>
    </message>
    <message>
        <source>Hands</source>
        <translation>Mãos</translation>
    </message>
    <message>
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message>
        <source>Incorrect: %1</source>
        <translation>Incorretas: %1</translation>
    </message>
    <message>
        <source>No combos match the current filters.</source>
        <translation>Nenhum combo corresponde aos filtros atuais.</translation>
    </message>
    <message>
        <source>No hand combos to display for this node.</source>
        <translation>Nenhum combo para exibir neste nó.</translation>
    </message>
    <message>
        <source>Node-Locking</source>
        <translation>Travamento de nós</translation>
    </message>
    <message>
        <source>Node-lock mode</source>
        <translation>Modo de travamento</translation>
    </message>
    <message>
        <source>Node-locking is only available on decision nodes.</source>
        <translation>O travamento de nós só está disponível em nós de decisão.</translation>
    </message>
    <message>
        <source>OOP</source>
        <translation>OOP</translation>
    </message>
    <message>
        <source>Play as IP</source>
        <translation>Jogar como IP</translation>
    </message>
    <message>
        <source>Play as OOP</source>
        <translation>Jogar como OOP</translation>
    </message>
    <message>
        <source>Play as both</source>
        <translation>Jogar com ambos</translation>
    </message>
    <message>
        <source>Play vs solution</source>
        <translation>Jogar contra a solução</translation>
    </message>
    <message>
        <source>Play vs. Solution</source>
        <translation>Jogar vs. solução</translation>
    </message>
    <message>
        <source>Pot</source>
        <translation>Pote</translation>
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
        <translation>Aleatória</translation>
    </message>
    <message>
        <source>Range view</source>
        <translation>Visão de range</translation>
    </message>
    <message>
        <source>Re-solve</source>
        <translation>Resolver de novo</translation>
    </message>
    <message>
        <source>Reset weights</source>
        <translation>Redefinir pesos</translation>
    </message>
    <message>
        <source>River</source>
        <translation>River</translation>
    </message>
    <message>
        <source>Role: %1</source>
        <translation>Papel: %1</translation>
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
        <translation>Modo padrão</translation>
    </message>
    <message>
        <source>Stop drill</source>
        <translation>Parar treino</translation>
    </message>
    <message>
        <source>Strategy View</source>
        <translation>Visão de estratégia</translation>
    </message>
    <message>
        <source>Strategy by Hand</source>
        <translation>Estratégia por mão</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumo</translation>
    </message>
    <message>
        <source>Tip: select an action above, then click a hand cell in the matrix to lock it.</source>
        <translation>Dica: escolha uma ação acima e clique em uma mão da matriz para travá-la.</translation>
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
        <translation>Vencedor: %1</translation>
    </message>
    <message>
        <source>Won: %1</source>
        <translation>Ganhou: %1</translation>
    </message>
    <message>
        <source>Won: —</source>
        <translation>Ganhou: —</translation>
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
        <translation>Cor de destaque</translation>
    </message>
    <message>
        <source>Apache 2.0</source>
        <translation>Apache 2.0</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aparência</translation>
    </message>
    <message>
        <source>Change the app language (takes effect immediately)</source>
        <translation>Muda o idioma do app (vale na hora)</translation>
    </message>
    <message>
        <source>Customize the app highlight color (buttons, accents, clubs/check).</source>
        <translation>Personalize a cor de destaque do app (botões, detalhes, paus/check).</translation>
    </message>
    <message>
        <source>Dark Mode</source>
        <translation>Modo escuro</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Licenses</source>
        <translation>Licenças</translation>
    </message>
    <message>
        <source>Open licenses folder</source>
        <translation>Abrir pasta de licenças</translation>
    </message>
    <message>
        <source>Open notices</source>
        <translation>Abrir avisos</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Redefinir</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Restaurar padrões</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>Salvar configurações</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Padrão do sistema</translation>
    </message>
    <message>
        <source>Third-party notices and license texts are included in the &apos;licenses&apos; folder next to the executable.</source>
        <translation>Os avisos e textos de licença de terceiros estão na pasta &apos;licenses&apos;, ao lado do executável.</translation>
    </message>
    <message>
        <source>Threading</source>
        <translation>Threads</translation>
    </message>
    <message>
        <source>Use dark color scheme throughout the interface</source>
        <translation>Usar esquema de cores escuro em toda a interface</translation>
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
        <translation>Board, ranges, árvore</translation>
    </message>
    <message>
        <source>Browse strategies</source>
        <translation>Explorar estratégias</translation>
    </message>
    <message>
        <source>Orvanthis</source>
        <translation>Orvanthis</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Início</translation>
    </message>
    <message>
        <source>Overview &amp; quick actions</source>
        <translation>Visão geral e ações rápidas</translation>
    </message>
    <message>
        <source>Poker Solver</source>
        <translation>Solver de pôquer</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferências</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Resultados</translation>
    </message>
    <message>
        <source>Run solver</source>
        <translation>Executar solver</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Projeto</translation>
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
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>Compute</source>
        <translation>Processamento</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Configuração</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Controles</translation>
    </message>
    <message>
        <source>Elapsed</source>
        <translation>Decorrido</translation>
    </message>
    <message>
        <source>Exploitability</source>
        <translation>Explorabilidade</translation>
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
        <translation>Iteração %1 | explorabilidade=%2</translation>
    </message>
    <message>
        <source>Iterations %1 • Target %2% (≈ %3) • Threads %4</source>
        <translation>Iterações %1 • Alvo %2% (≈ %3) • Threads %4</translation>
    </message>
    <message>
        <source>Iterations: %1</source>
        <translation>Iterações: %1</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Máx.</translation>
    </message>
    <message>
        <source>Measuring...</source>
        <translation>Medindo...</translation>
    </message>
    <message>
        <source>Metrics</source>
        <translation>Métricas</translation>
    </message>
    <message>
        <source>No runs yet — click Start Solve to record a run here.</source>
        <translation>Nenhuma execução ainda — clique em Iniciar solve para registrar uma aqui.</translation>
    </message>
    <message>
        <source>OOP: %1</source>
        <translation>OOP: %1</translation>
    </message>
    <message>
        <source>Precision</source>
        <translation>Precisão</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>Rake: %1% (cap %2)</source>
        <translation>Rake: %1% (teto %2)</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Pronto</translation>
    </message>
    <message>
        <source>Ready to solve</source>
        <translation>Pronto para o solve</translation>
    </message>
    <message>
        <source>Recent Runs</source>
        <translation>Execuções recentes</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>Restante</translation>
    </message>
    <message>
        <source>Run the CFR solver and monitor progress in real-time.</source>
        <translation>Execute o solver CFR e acompanhe o progresso em tempo real.</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Executando</translation>
    </message>
    <message>
        <source>Solve</source>
        <translation>Solve</translation>
    </message>
    <message>
        <source>Solver converged — finalizing results…</source>
        <translation>Solver convergiu — finalizando resultados…</translation>
    </message>
    <message>
        <source>Solving...</source>
        <translation>Resolvendo...</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidade</translation>
    </message>
    <message>
        <source>Start Solve</source>
        <translation>Iniciar solve</translation>
    </message>
    <message>
        <source>Target: %1% (≈ %2)</source>
        <translation>Alvo: %1% (≈ %2)</translation>
    </message>
    <message>
        <source>Threads</source>
        <translation>Threads</translation>
    </message>
    <message>
        <source>View Results →</source>
        <translation>Ver resultados →</translation>
    </message>
    <message>
        <source>Window %1/%2</source>
        <translation>Janela %1/%2</translation>
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
        <translation>Preencha board, ranges e tamanhos para ativar Solve</translation>
    </message>
    <message>
        <source>Finalizing</source>
        <translation>Finalizando</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Início</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Pronto</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Resultados</translation>
    </message>
    <message>
        <source>Run a solve to enable Results</source>
        <translation>Faça um solve para ativar Resultados</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Projeto</translation>
    </message>
    <message>
        <source>Solve</source>
        <translation>Solve</translation>
    </message>
    <message>
        <source>Solving</source>
        <translation>Resolvendo</translation>
    </message>
    <message>
        <source>Start a new project (or load one) from Home to enable Project</source>
        <translation>Crie um projeto (ou carregue um) no Início para ativar Projeto</translation>
    </message>
</context>
<context>
    <name>TreeNode</name>
    <message>
        <source>Deal</source>
        <translation>Distribuir</translation>
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
        <translation>Pote: %1</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Terminal</translation>
    </message>
</context>
</TS>
