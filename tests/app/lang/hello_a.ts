<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>tst</name>
    <message>
        <source>Hello</source>
        <translation>Привет</translation>
    </message>
</context>
</TS>
