<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>Tesselor</name>
    <message numerus="yes">
        <source>%n card(s) left</source>
        <translation>
            <numerusform>%n card left</numerusform>
            <numerusform>%n cards left</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Line scored: %Ln point(s).</source>
        <translation>
            <numerusform>Line scored: %Ln point.</numerusform>
            <numerusform>Line scored: %Ln points.</numerusform>
        </translation>
    </message>
</context>
</TS>
