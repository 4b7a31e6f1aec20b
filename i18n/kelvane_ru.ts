<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>ActionBar</name>
    <message>
        <source>%1 EV</source>
        <translation>%1 EV</translation>
    </message>
    <message>
        <source>%1 combos</source>
        <translation>%1 комбо</translation>
    </message>
    <message>
        <source>%1% equity</source>
        <translation>Эквити %1%</translation>
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
        <translation>Готово</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Запуск...</translation>
    </message>
    <message>
        <source>Not ready: enter a valid board first</source>
        <translation>Не готово: сначала введите корректный борд</translation>
    </message>
    <message>
        <source>Not ready: select at least one hand in both ranges</source>
        <translation>Не готово: выберите хотя бы одну руку в обоих диапазонах</translation>
    </message>
    <message>
        <source>Not ready: fill out both OOP and IP sizing</source>
        <translation>Не готово: заполните размеры ставок для OOP и IP</translation>
    </message>
    <message>
        <source>Already running</source>
        <translation>Уже выполняется</translation>
    </message>
    <message>
        <source>Solve failed: %1</source>
        <translation>Ошибка расчёта: %1</translation>
    </message>
    <message>
        <source>Board %1 | iters %2 | expl≈%3 | EV(oop)=%4 EV(ip)=%5</source>
        <translation>Борд %1 | итер. %2 | expl≈%3 | EV(oop)=%4 EV(ip)=%5</translation>
    </message>
    <message>
        <source>No previous solve config (solve once first)</source>
        <translation>Нет предыдущей конфигурации (сначала выполните расчёт)</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>Отмена...</translation>
    </message>
    <message>
        <source>Invalid/non-local file URL</source>
        <translation>Недопустимый или нелокальный URL файла</translation>
    </message>
    <message>
        <source>Empty file path</source>
        <translation>Пустой путь к файлу</translation>
    </message>
    <message>
        <source>Failed to open file</source>
        <translation>Не удалось открыть файл</translation>
    </message>
    <message>
        <source>Invalid JSON</source>
        <translation>Некорректный JSON</translation>
    </message>
    <message>
        <source>Unrecognized project format</source>
        <translation>Неизвестный формат проекта</translation>
    </message>
    <message>
        <source>Unsupported project version</source>
        <translation>Неподдерживаемая версия проекта</translation>
    </message>
    <message>
        <source>Loaded project (%1 strategy nodes, %2 combo nodes)</source>
        <translation>Проект загружен (узлов стратегии: %1, узлов комбо: %2)</translation>
    </message>
    <message>
        <source>Failed to open file: %1</source>
        <translation>Не удалось открыть файл: %1</translation>
    </message>
    <message>
        <source>Failed to save file: %1</source>
        <translation>Не удалось сохранить файл: %1</translation>
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
        <translation>воздух</translation>
    </message>
    <message>
        <source>back door flush draw</source>
        <translation>бэкдор флеш-дро</translation>
    </message>
    <message>
        <source>bottom pair</source>
        <translation>нижняя пара</translation>
    </message>
    <message>
        <source>dry pair</source>
        <translation>сухая пара</translation>
    </message>
    <message>
        <source>flush</source>
        <translation>флеш</translation>
    </message>
    <message>
        <source>flush draw</source>
        <translation>флеш-дро</translation>
    </message>
    <message>
        <source>full house</source>
        <translation>фулл-хаус</translation>
    </message>
    <message>
        <source>gutter</source>
        <translation>гатшот</translation>
    </message>
    <message>
        <source>middle pair</source>
        <translation>средняя пара</translation>
    </message>
    <message>
        <source>missed FD</source>
        <translation>несыгравшее флеш-дро</translation>
    </message>
    <message>
        <source>missed OESD</source>
        <translation>несыгравшее OESD</translation>
    </message>
    <message>
        <source>missed gutter</source>
        <translation>несыгравший гатшот</translation>
    </message>
    <message>
        <source>open ended straight draw</source>
        <translation>двустороннее стрит-дро</translation>
    </message>
    <message>
        <source>overpair</source>
        <translation>оверпара</translation>
    </message>
    <message>
        <source>quads</source>
        <translation>каре</translation>
    </message>
    <message>
        <source>set</source>
        <translation>сет</translation>
    </message>
    <message>
        <source>straight</source>
        <translation>стрит</translation>
    </message>
    <message>
        <source>straight flush</source>
        <translation>стрит-флеш</translation>
    </message>
    <message>
        <source>top pair</source>
        <translation>топ-пара</translation>
    </message>
    <message>
        <source>trips</source>
        <translation>трипс</translation>
    </message>
    <message>
        <source>two pair</source>
        <translation>две пары</translation>
    </message>
</context>
<context>
    <name>HomePage</name>
    <message>
        <source> (future)</source>
        <translation> (будущее)</translation>
    </message>
    <message>
        <source>%1 (%2 free)</source>
        <translation>%1 (свободно %2)</translation>
    </message>
    <message>
        <source>%1 available</source>
        <translation>Доступно %1</translation>
    </message>
    <message>
        <source>%1%2</source>
        <translation>%1%2</translation>
    </message>
    <message>
        <source>A modern, high-performance holdem solver</source>
        <translation>Современный высокопроизводительный солвер для холдема</translation>
    </message>
    <message>
        <source>Accuracy (Today / Total)</source>
        <translation>Точность (сегодня / всего)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Все файлы (*)</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>Апр</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>Авг</translation>
    </message>
    <message>
        <source>Avg EV Loss (Today / Total)</source>
        <translation>Средн. потеря EV (сегодня / всего)</translation>
    </message>
    <message>
        <source>Avg expl: %1</source>
        <translation>Средн. эксп.: %1</translation>
    </message>
    <message>
        <source>Avg iters: %1</source>
        <translation>Средн. итераций: %1</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>Clear Play vs. Solution Stats</source>
        <translation>Очистить статистику «Игра vs решение»</translation>
    </message>
    <message>
        <source>Clear all Play vs. Solution statistics (today + total)?</source>
        <translation>Очистить всю статистику «Игра vs решение» (сегодня + всего)?</translation>
    </message>
    <message>
        <source>Configure board, ranges, tree</source>
        <translation>Борд, рейнджи, дерево</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>Дек</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>Движок</translation>
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
        <translation>Фев</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>Пт</translation>
    </message>
    <message>
        <source>Hands (Today / Total)</source>
        <translation>Руки (сегодня / всего)</translation>
    </message>
    <message>
        <source>Import Range</source>
        <translation>Импорт рейнджа</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Jan</source>
        <translation>Янв</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>Июл</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>Июн</translation>
    </message>
    <message>
        <source>Last 52 weeks (incl. upcoming days)</source>
        <translation>Последние 52 недели (вкл. будущие дни)</translation>
    </message>
    <message>
        <source>Load from file</source>
        <translation>Загрузить из файла</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>Мар</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Май</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Память</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>Пн</translation>
    </message>
    <message>
        <source>New Solve</source>
        <translation>Новый расчёт</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>Ноя</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>Окт</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Открыть файл</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Открыть проект</translation>
    </message>
    <message>
        <source>Play vs. Solution</source>
        <translation>Игра vs решение</translation>
    </message>
    <message>
        <source>Quick Actions</source>
        <translation>Быстрые действия</translation>
    </message>
    <message>
        <source>Quick Solve</source>
        <translation>Быстрый расчёт</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>Сб</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Save Project</source>
        <translation>Сохранить проект</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>Сен</translation>
    </message>
    <message>
        <source>Solve Activity</source>
        <translation>Активность расчётов</translation>
    </message>
    <message>
        <source>Solves: %1</source>
        <translation>Расчётов: %1</translation>
    </message>
    <message>
        <source>Kelvane Project (*.kelvaneproj)</source>
        <translation>Проект Kelvane (*.kelvaneproj)</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>Вс</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Система</translation>
    </message>
    <message>
        <source>Threads</source>
        <translation>Потоки</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Чт</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>Вт</translation>
    </message>
    <message>
        <source>Use default settings</source>
        <translation>Настройки по умолчанию</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>Ср</translation>
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
        <translation>% банка</translation>
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
        <translation>Рейк 100nl</translation>
    </message>
    <message>
        <source>200nl rake</source>
        <translation>Рейк 200nl</translation>
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
        <translation>Рейк 500nl</translation>
    </message>
    <message>
        <source>50nl rake</source>
        <translation>Рейк 50nl</translation>
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
        <translation>Добавить</translation>
    </message>
    <message>
        <source>Add All-In</source>
        <translation>Добавить олл-ин</translation>
    </message>
    <message>
        <source>Add all-in if jam less than</source>
        <translation>Олл-ин, если пуш до</translation>
    </message>
    <message>
        <source>Add folder (IP)</source>
        <translation>Добавить папку (IP)</translation>
    </message>
    <message>
        <source>Add folder (OOP)</source>
        <translation>Добавить папку (OOP)</translation>
    </message>
    <message>
        <source>Add folder…</source>
        <translation>Добавить папку…</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Все файлы (*)</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this saved profile?</source>
        <translation>Удалить этот сохранённый профиль?</translation>
    </message>
    <message>
        <source>Bet sizes (%)</source>
        <translation>Беты (%)</translation>
    </message>
    <message>
        <source>Board</source>
        <translation>Борд</translation>
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
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Check back</source>
        <translation>Check back</translation>
    </message>
    <message>
        <source>Choose a saved profile:</source>
        <translation>Выберите сохранённый профиль:</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>Clear all locally overridden population ranges for %1?</source>
        <translation>Сбросить все локально изменённые рейнджи популяции для %1?</translation>
    </message>
    <message>
        <source>Clear all locally overridden standard ranges for %1?</source>
        <translation>Сбросить все локально изменённые стандартные рейнджи для %1?</translation>
    </message>
    <message>
        <source>Clear card</source>
        <translation>Убрать карту</translation>
    </message>
    <message>
        <source>Clear overrides…</source>
        <translation>Сбросить изменения…</translation>
    </message>
    <message>
        <source>Clear population overrides</source>
        <translation>Сбросить изменения популяции</translation>
    </message>
    <message>
        <source>Clear standard overrides</source>
        <translation>Сбросить стандартные изменения</translation>
    </message>
    <message>
        <source>Configure your game tree: board, ranges, and bet sizing.</source>
        <translation>Настройте дерево игры: борд, рейнджи и размеры ставок.</translation>
    </message>
    <message>
        <source>Continue to Solve →</source>
        <translation>К расчёту →</translation>
    </message>
    <message>
        <source>Custom Ranges</source>
        <translation>Свои рейнджи</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Delete range</source>
        <translation>Удалить рейндж</translation>
    </message>
    <message>
        <source>Delete selected…</source>
        <translation>Удалить выбранное…</translation>
    </message>
    <message>
        <source>Delete settings profile</source>
        <translation>Удалить профиль настроек</translation>
    </message>
    <message>
        <source>Don&apos;t donk</source>
        <translation>Без донка</translation>
    </message>
    <message>
        <source>Effective Stack</source>
        <translation>Эффективный стек</translation>
    </message>
    <message>
        <source>Export Population Ranges</source>
        <translation>Экспорт рейнджей популяции</translation>
    </message>
    <message>
        <source>Export Standard Ranges</source>
        <translation>Экспорт стандартных рейнджей</translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>Ошибка экспорта: %1</translation>
    </message>
    <message>
        <source>Export failed: appController.saveTextFile unavailable.</source>
        <translation>Ошибка экспорта: appController.saveTextFile недоступен.</translation>
    </message>
    <message>
        <source>Export population…</source>
        <translation>Экспорт популяции…</translation>
    </message>
    <message>
        <source>Export standard…</source>
        <translation>Экспорт стандартных…</translation>
    </message>
    <message>
        <source>Extreme loose</source>
        <translation>Очень лузовый</translation>
    </message>
    <message>
        <source>Flop</source>
        <translation>Флоп</translation>
    </message>
    <message>
        <source>Flop card</source>
        <translation>Карта флопа</translation>
    </message>
    <message>
        <source>Folder name:</source>
        <translation>Имя папки:</translation>
    </message>
    <message>
        <source>Game Settings</source>
        <translation>Настройки игры</translation>
    </message>
    <message>
        <source>Heads up</source>
        <translation>Хедз-ап</translation>
    </message>
    <message>
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message>
        <source>IP Range</source>
        <translation>Рейндж IP</translation>
    </message>
    <message>
        <source>IP Sizing</source>
        <translation>Сайзинг IP</translation>
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
        <translation>Загрузить</translation>
    </message>
    <message>
        <source>Load Settings Profile</source>
        <translation>Загрузить профиль настроек</translation>
    </message>
    <message>
        <source>Load settings</source>
        <translation>Загрузить настройки</translation>
    </message>
    <message>
        <source>Loose aggressive</source>
        <translation>Лузово-агрессивный</translation>
    </message>
    <message>
        <source>Looser reg</source>
        <translation>Более лузовый рег</translation>
    </message>
    <message>
        <source>Maniac</source>
        <translation>Маньяк</translation>
    </message>
    <message>
        <source>Name this range:</source>
        <translation>Имя рейнджа:</translation>
    </message>
    <message>
        <source>Nit</source>
        <translation>Nit</translation>
    </message>
    <message>
        <source>No rake</source>
        <translation>Без рейка</translation>
    </message>
    <message>
        <source>No ranges yet.</source>
        <translation>Рейнджей пока нет.</translation>
    </message>
    <message>
        <source>No saved profiles yet.</source>
        <translation>Сохранённых профилей пока нет.</translation>
    </message>
    <message>
        <source>OOP</source>
        <translation>OOP</translation>
    </message>
    <message>
        <source>OOP Range</source>
        <translation>Рейндж OOP</translation>
    </message>
    <message>
        <source>OOP Sizing</source>
        <translation>Сайзинг OOP</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Другое</translation>
    </message>
    <message>
        <source>Overfolder</source>
        <translation>Overfolder</translation>
    </message>
    <message>
        <source>Override</source>
        <translation>Перезаписать</translation>
    </message>
    <message>
        <source>Passive</source>
        <translation>Пассивный</translation>
    </message>
    <message>
        <source>Passive loose</source>
        <translation>Пассивный лузовый</translation>
    </message>
    <message>
        <source>Passive neutral</source>
        <translation>Пассивный нейтральный</translation>
    </message>
    <message>
        <source>Passive tight</source>
        <translation>Пассивный тайтовый</translation>
    </message>
    <message>
        <source>Please enter a name.</source>
        <translation>Введите имя.</translation>
    </message>
    <message>
        <source>Please select a profile.</source>
        <translation>Выберите профиль.</translation>
    </message>
    <message>
        <source>Population Ranges</source>
        <translation>Рейнджи популяции</translation>
    </message>
    <message>
        <source>Profile name:</source>
        <translation>Имя профиля:</translation>
    </message>
    <message>
        <source>Project Setup</source>
        <translation>Настройка проекта</translation>
    </message>
    <message>
        <source>Raise sizes (%)</source>
        <translation>Рейзы (%)</translation>
    </message>
    <message>
        <source>Rake (%)</source>
        <translation>Рейк (%)</translation>
    </message>
    <message>
        <source>Rake Cap</source>
        <translation>Кэп рейка</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>River</source>
        <translation>Ривер</translation>
    </message>
    <message>
        <source>River card</source>
        <translation>Карта ривера</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Save IP range</source>
        <translation>Сохранить рейндж IP</translation>
    </message>
    <message>
        <source>Save OOP range</source>
        <translation>Сохранить рейндж OOP</translation>
    </message>
    <message>
        <source>Save Settings Profile</source>
        <translation>Сохранить профиль настроек</translation>
    </message>
    <message>
        <source>Save current range…</source>
        <translation>Сохранить рейндж…</translation>
    </message>
    <message>
        <source>Save settings</source>
        <translation>Сохранить настройки</translation>
    </message>
    <message>
        <source>Select card</source>
        <translation>Выбрать карту</translation>
    </message>
    <message>
        <source>Setup Required</source>
        <translation>Требуется настройка</translation>
    </message>
    <message>
        <source>Solve RAM: %1 required • %2 available</source>
        <translation>RAM для расчёта: нужно %1 • доступно %2</translation>
    </message>
    <message>
        <source>Standard LAG</source>
        <translation>Стандартный LAG</translation>
    </message>
    <message>
        <source>Standard Ranges</source>
        <translation>Стандартные рейнджи</translation>
    </message>
    <message>
        <source>Starting Pot</source>
        <translation>Начальный банк</translation>
    </message>
    <message>
        <source>Target Exploitability (%)</source>
        <translation>Целевая эксплуатируемость (%)</translation>
    </message>
    <message>
        <source>This cannot be undone.</source>
        <translation>Это действие нельзя отменить.</translation>
    </message>
    <message>
        <source>This will also delete %1 range(s). This cannot be undone.</source>
        <translation>Будут удалены и рейнджи (%1). Это действие нельзя отменить.</translation>
    </message>
    <message>
        <source>Tighter reg</source>
        <translation>Более тайтовый рег</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Тёрн</translation>
    </message>
    <message>
        <source>Turn card</source>
        <translation>Карта тёрна</translation>
    </message>
    <message>
        <source>Weaker regs</source>
        <translation>Слабые реги</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Вес</translation>
    </message>
    <message>
        <source>e.g. 30</source>
        <translation>напр. 30</translation>
    </message>
    <message>
        <source>e.g., 0</source>
        <translation>напр., 0</translation>
    </message>
    <message>
        <source>e.g., 0.10</source>
        <translation>напр., 0.10</translation>
    </message>
    <message>
        <source>e.g., 100</source>
        <translation>напр., 100</translation>
    </message>
    <message>
        <source>e.g., 100bb rake-free (fast)</source>
        <translation>напр., 100bb без рейка (быстро)</translation>
    </message>
    <message>
        <source>e.g., 5.0</source>
        <translation>напр., 5.0</translation>
    </message>
    <message>
        <source>e.g., AA, KK, AKs, QQ+ or 50%</source>
        <translation>напр., AA, KK, AKs, QQ+ или 50%</translation>
    </message>
    <message>
        <source>e.g., BTN vs BB</source>
        <translation>напр., BTN vs BB</translation>
    </message>
    <message>
        <source>e.g., BTN vs BB (default)</source>
        <translation>напр., BTN vs BB (по умолчанию)</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>неизвестная ошибка</translation>
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
        <translation>Рук: %1</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Рейндж</translation>
    </message>
    <message>
        <source>e.g., AA, KK, AKs, QQ+ or 50%</source>
        <translation>напр., AA, KK, AKs, QQ+ или 50%</translation>
    </message>
</context>
<context>
    <name>ResultsPage</name>
    <message>
        <source>%1 hands</source>
        <translation>Рук: %1</translation>
    </message>
    <message>
        <source>%1 options</source>
        <translation>Вариантов: %1</translation>
    </message>
    <message>
        <source>%1 shown</source>
        <translation>Показано: %1</translation>
    </message>
    <message>
        <source>%1 to act</source>
        <translation>Ходит %1</translation>
    </message>
    <message>
        <source>0..1</source>
        <translation>0..1</translation>
    </message>
    <message>
        <source>Action Frequencies</source>
        <translation>Частоты действий</translation>
    </message>
    <message>
        <source>Another hand</source>
        <translation>Другая рука</translation>
    </message>
    <message>
        <source>Available actions</source>
        <translation>Доступные действия</translation>
    </message>
    <message>
        <source>Buckets</source>
        <translation>Категории</translation>
    </message>
    <message>
        <source>Choose a role to start</source>
        <translation>Выберите роль, чтобы начать</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>Click Turn/River to change</source>
        <translation>Нажмите на тёрн/ривер, чтобы сменить</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Correct: %1</source>
        <translation>Верно: %1</translation>
    </message>
    <message>
        <source>D</source>
        <translation>D</translation>
    </message>
    <message>
        <source>Deal %1</source>
        <translation>Раздача: %1</translation>
    </message>
    <message>
        <source>Drill spot</source>
        <translation>Тренировать спот</translation>
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
        <translation>Потеря EV: %1</translation>
    </message>
    <message>
        <source>EV lost: —</source>
        <translation>Потеря EV: —</translation>
    </message>
    <message>
        <source>EV:</source>
        <translation>EV:</translation>
    </message>
    <message>
        <source>Exploitability</source>
        <translation>Эксплуатируемость</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Фильтр: %1</translation>
    </message>
    <message>
        <source>Flop</source>
        <translation>Флоп</translation>
    </message>
    <message>
        <source>Game Tree</source>
        <translation>Дерево игры</translation>
    </message>
    <message>
        <source>Hand Details</source>
        <translation>Детали руки</translation>
    </message>
    <message>
        <source>Hand Log</source>
        <translation>Журнал рук</translation>
    </message>
    <message>
        <source>Hand details</source>
        <translation>Детали руки</translation>
    </message>
    <message>
        <source>Hands</source>
        <translation>Руки</translation>
    </message>
    <message>
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message>
        <source>Incorrect: %1</source>
        <translation>Неверно: %1</translation>
    </message>
    <message>
        <source>No combos match the current filters.</source>
        <translation>Нет комбо, подходящих под фильтры.</translation>
    </message>
    <message>
        <source>No hand combos to display for this node.</source>
        <translation>В этом узле нет комбо для показа.</translation>
    </message>
    <message>
        <source>Node-Locking</source>
        <translation>Фиксация узлов</translation>
    </message>
    <message>
        <source>Node-lock mode</source>
        <translation>Режим фиксации</translation>
    </message>
    <message>
        <source>Node-locking is only available on decision nodes.</source>
        <translation>Фиксация узлов доступна только в узлах решений.</translation>
    </message>
    <message>
        <source>OOP</source>
        <translation>OOP</translation>
    </message>
    <message>
        <source>Play as IP</source>
        <translation>Играть за IP</translation>
    </message>
    <message>
        <source>Play as OOP</source>
        <translation>Играть за OOP</translation>
    </message>
    <message>
        <source>Play as both</source>
        <translation>Играть за обоих</translation>
    </message>
    <message>
        <source>Play vs solution</source>
        <translation>Играть против решения</translation>
    </message>
    <message>
        <source>Play vs. Solution</source>
        <translation>Игра vs решение</translation>
    </message>
    <message>
        <source>Pot</source>
        <translation>Банк</translation>
    </message>
    <message>
        <source>Rake: %1</source>
        <translation>Рейк: %1</translation>
    </message>
    <message>
        <source>Rake: —</source>
        <translation>Рейк: —</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>Случайная</translation>
    </message>
    <message>
        <source>Range view</source>
        <translation>Вид рейнджа</translation>
    </message>
    <message>
        <source>Re-solve</source>
        <translation>Пересчитать</translation>
    </message>
    <message>
        <source>Reset weights</source>
        <translation>Сбросить веса</translation>
    </message>
    <message>
        <source>River</source>
        <translation>Ривер</translation>
    </message>
    <message>
        <source>Role: %1</source>
        <translation>Роль: %1</translation>
    </message>
    <message>
        <source>Search (JJ, 56s, JcJd, ...)</source>
        <translation>Поиск (JJ, 56s, JcJd, ...)</translation>
    </message>
    <message>
        <source>Stack (%1)</source>
        <translation>Стек (%1)</translation>
    </message>
    <message>
        <source>Standard mode</source>
        <translation>Обычный режим</translation>
    </message>
    <message>
        <source>Stop drill</source>
        <translation>Остановить тренировку</translation>
    </message>
    <message>
        <source>Strategy View</source>
        <translation>Вид стратегии</translation>
    </message>
    <message>
        <source>Strategy by Hand</source>
        <translation>Стратегия по рукам</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Сводка</translation>
    </message>
    <message>
        <source>Tip: select an action above, then click a hand cell in the matrix to lock it.</source>
        <translation>Совет: выберите действие выше, затем нажмите на руку в матрице, чтобы зафиксировать её.</translation>
    </message>
    <message>
        <source>To call</source>
        <translation>К коллу</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Тёрн</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Вес</translation>
    </message>
    <message>
        <source>Winner: %1</source>
        <translation>Победитель: %1</translation>
    </message>
    <message>
        <source>Won: %1</source>
        <translation>Выигрыш: %1</translation>
    </message>
    <message>
        <source>Won: —</source>
        <translation>Выигрыш: —</translation>
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
        <translation>Акцентный цвет</translation>
    </message>
    <message>
        <source>Apache 2.0</source>
        <translation>Apache 2.0</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Внешний вид</translation>
    </message>
    <message>
        <source>Change the app language (takes effect immediately)</source>
        <translation>Сменить язык приложения (сразу)</translation>
    </message>
    <message>
        <source>Customize the app highlight color (buttons, accents, clubs/check).</source>
        <translation>Цвет выделения в приложении (кнопки, акценты, трефы/чек).</translation>
    </message>
    <message>
        <source>Dark Mode</source>
        <translation>Тёмная тема</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>Licenses</source>
        <translation>Лицензии</translation>
    </message>
    <message>
        <source>Open licenses folder</source>
        <translation>Открыть папку лицензий</translation>
    </message>
    <message>
        <source>Open notices</source>
        <translation>Открыть уведомления</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Сбросить</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Сбросить настройки</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>Сохранить настройки</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Как в системе</translation>
    </message>
    <message>
        <source>Third-party notices and license texts are included in the &apos;licenses&apos; folder next to the executable.</source>
        <translation>Уведомления и тексты лицензий сторонних компонентов лежат в папке &apos;licenses&apos; рядом с исполняемым файлом.</translation>
    </message>
    <message>
        <source>Threading</source>
        <translation>Потоки</translation>
    </message>
    <message>
        <source>Use dark color scheme throughout the interface</source>
        <translation>Тёмная цветовая схема во всём интерфейсе</translation>
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
        <translation>Борд, рейнджи, дерево</translation>
    </message>
    <message>
        <source>Browse strategies</source>
        <translation>Просмотр стратегий</translation>
    </message>
    <message>
        <source>Orvanthis</source>
        <translation>Orvanthis</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Главная</translation>
    </message>
    <message>
        <source>Overview &amp; quick actions</source>
        <translation>Обзор и быстрые действия</translation>
    </message>
    <message>
        <source>Poker Solver</source>
        <translation>Покерный солвер</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Параметры</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Результаты</translation>
    </message>
    <message>
        <source>Run solver</source>
        <translation>Запуск солвера</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Проект</translation>
    </message>
    <message>
        <source>Solve</source>
        <translation>Расчёт</translation>
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
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>Compute</source>
        <translation>Вычисления</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Конфигурация</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Управление</translation>
    </message>
    <message>
        <source>Elapsed</source>
        <translation>Прошло</translation>
    </message>
    <message>
        <source>Exploitability</source>
        <translation>Эксплуатируемость</translation>
    </message>
    <message>
        <source>Finalizing</source>
        <translation>Завершение</translation>
    </message>
    <message>
        <source>Finalizing…</source>
        <translation>Завершение…</translation>
    </message>
    <message>
        <source>Flop: OOP %1 | IP %2</source>
        <translation>Флоп: OOP %1 | IP %2</translation>
    </message>
    <message>
        <source>IP: %1</source>
        <translation>IP: %1</translation>
    </message>
    <message>
        <source>Iteration %1 | exploitability=%2</source>
        <translation>Итерация %1 | эксплуатируемость=%2</translation>
    </message>
    <message>
        <source>Iterations %1 • Target %2% (≈ %3) • Threads %4</source>
        <translation>Итераций %1 • Цель %2% (≈ %3) • Потоков %4</translation>
    </message>
    <message>
        <source>Iterations: %1</source>
        <translation>Итераций: %1</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Макс.</translation>
    </message>
    <message>
        <source>Measuring...</source>
        <translation>Измерение...</translation>
    </message>
    <message>
        <source>Metrics</source>
        <translation>Метрики</translation>
    </message>
    <message>
        <source>No runs yet — click Start Solve to record a run here.</source>
        <translation>Запусков пока нет — нажмите «Начать расчёт», чтобы записать запуск здесь.</translation>
    </message>
    <message>
        <source>OOP: %1</source>
        <translation>OOP: %1</translation>
    </message>
    <message>
        <source>Precision</source>
        <translation>Разрядность</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Прогресс</translation>
    </message>
    <message>
        <source>Rake: %1% (cap %2)</source>
        <translation>Рейк: %1% (кэп %2)</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Ready to solve</source>
        <translation>Готово к расчёту</translation>
    </message>
    <message>
        <source>Recent Runs</source>
        <translation>Последние запуски</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>Осталось</translation>
    </message>
    <message>
        <source>Run the CFR solver and monitor progress in real-time.</source>
        <translation>Запустите CFR-солвер и следите за прогрессом в реальном времени.</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Идёт расчёт</translation>
    </message>
    <message>
        <source>Solve</source>
        <translation>Расчёт</translation>
    </message>
    <message>
        <source>Solver converged — finalizing results…</source>
        <translation>Солвер сошёлся — подготовка результатов…</translation>
    </message>
    <message>
        <source>Solving...</source>
        <translation>Расчёт...</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Скорость</translation>
    </message>
    <message>
        <source>Start Solve</source>
        <translation>Начать расчёт</translation>
    </message>
    <message>
        <source>Target: %1% (≈ %2)</source>
        <translation>Цель: %1% (≈ %2)</translation>
    </message>
    <message>
        <source>Threads</source>
        <translation>Потоки</translation>
    </message>
    <message>
        <source>View Results →</source>
        <translation>Смотреть результаты →</translation>
    </message>
    <message>
        <source>Window %1/%2</source>
        <translation>Окно %1/%2</translation>
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
        <translation>Заполните борд, рейнджи и сайзинги, чтобы включить Расчёт</translation>
    </message>
    <message>
        <source>Finalizing</source>
        <translation>Завершение</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Главная</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Результаты</translation>
    </message>
    <message>
        <source>Run a solve to enable Results</source>
        <translation>Выполните расчёт, чтобы включить Результаты</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Проект</translation>
    </message>
    <message>
        <source>Solve</source>
        <translation>Расчёт</translation>
    </message>
    <message>
        <source>Solving</source>
        <translation>Идёт расчёт</translation>
    </message>
    <message>
        <source>Start a new project (or load one) from Home to enable Project</source>
        <translation>Создайте проект (или загрузите) на Главной, чтобы включить Проект</translation>
    </message>
</context>
<context>
    <name>TreeNode</name>
    <message>
        <source>Deal</source>
        <translation>Раздача</translation>
    </message>
    <message>
        <source>EV: %1%2</source>
        <translation>EV: %1%2</translation>
    </message>
    <message>
        <source>Freq: %1%</source>
        <translation>Част.: %1%</translation>
    </message>
    <message>
        <source>Pot: %1</source>
        <translation>Банк: %1</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Конец</translation>
    </message>
</context>
</TS>
