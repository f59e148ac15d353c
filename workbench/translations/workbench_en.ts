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
</context>
</TS>
