<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
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
</TS>
