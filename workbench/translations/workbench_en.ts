<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>workbench</name>
    <message numerus="yes">
        <source>%n event(s)</source>
        <translation>
            <numerusform>%n event</numerusform>
            <numerusform>%n events</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Basket of %n task(s)</source>
        <translation>
            <numerusform>Basket of %n task</numerusform>
            <numerusform>Basket of %n tasks</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Recording: %n step(s).</source>
        <translation>
            <numerusform>Recording: %n step.</numerusform>
            <numerusform>Recording: %n steps.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n step(s).</source>
        <translation>
            <numerusform>%n step.</numerusform>
            <numerusform>%n steps.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n step(s) answered otherwise.</source>
        <translation>
            <numerusform>%n step answered otherwise.</numerusform>
            <numerusform>%n steps answered otherwise.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n difference(s)</source>
        <translation>
            <numerusform>%n difference</numerusform>
            <numerusform>%n differences</numerusform>
        </translation>
    </message>
</context>
</TS>
