<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl">
<context>
    <name>CommandLine</name>
    <message>
        <source>Tells the options.</source>
        <translation>Vertelt de opties.</translation>
    </message>
    <message>
        <source>Tells the version.</source>
        <translation>Vertelt de versie.</translation>
    </message>
    <message>
        <source>How many times as large as 240 x 320 the window is: a number from 1 to 8 in quarter steps, such as 2 or 1.75; or &quot;larger&quot; or &quot;smaller&quot; than by itself.</source>
        <translation>Hoeveel maal zo groot als 240 x 320 het venster is: een getal van 1 tot 8 in stappen van een kwart, zoals 2 of 1.75; of &quot;larger&quot; (groter) of &quot;smaller&quot; (kleiner) dan vanzelf.</translation>
    </message>
    <message>
        <source>factor</source>
        <translation>factor</translation>
    </message>
    <message>
        <source>Draughts against the computer or another person.
The options of the Qt toolkit, such as -style and -platform, work as well.</source>
        <translation>Dammen tegen de computer of tegen een andere speler.
Ook de opties van Qt, zoals -style en -platform, werken.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no option; --help tells those there are.</source>
        <translation>&apos;%1&apos; is geen optie; --help vertelt welke er zijn.</translation>
    </message>
    <message>
        <source>--scale takes a number from 1 to 8 in quarter steps, &quot;larger&quot; or &quot;smaller&quot;, and not &apos;%1&apos;.</source>
        <translation>--scale neemt een getal van 1 tot 8 in stappen van een kwart, &quot;larger&quot; of &quot;smaller&quot;, en niet &apos;%1&apos;.</translation>
    </message>
</context>
<context>
    <name>Draughts</name>
    <message>
        <source>White to move.</source>
        <translation>Wit is aan zet.</translation>
    </message>
    <message>
        <source>Black to move.</source>
        <translation>Zwart is aan zet.</translation>
    </message>
    <message>
        <source>White %1, black %2.</source>
        <translation>Wit %1, zwart %2.</translation>
    </message>
    <message>
        <source>Board</source>
        <translation>Bord</translation>
    </message>
    <message>
        <source>*** THINKING ***</source>
        <translation>*** DENKT NA ***</translation>
    </message>
    <message>
        <source>You Must Capture</source>
        <translation>Slaan is verplicht</translation>
    </message>
    <message>
        <source>Your Move</source>
        <translation>U bent aan zet</translation>
    </message>
    <message>
        <source>Game Over</source>
        <translation>Einde van het spel</translation>
    </message>
    <message>
        <source>New game.</source>
        <translation>Nieuw spel.</translation>
    </message>
    <message>
        <source>being taken</source>
        <translation>wordt geslagen</translation>
    </message>
    <message>
        <source>chosen</source>
        <translation>gekozen</translation>
    </message>
    <message>
        <source>offered</source>
        <translation>mogelijk veld</translation>
    </message>
    <message>
        <source>can capture</source>
        <translation>kan slaan</translation>
    </message>
    <message>
        <source>can move</source>
        <translation>kan zetten</translation>
    </message>
    <message>
        <source>From %1 to %2.</source>
        <translation>Van %1 naar %2.</translation>
    </message>
    <message>
        <source>%1 cannot go to %2.</source>
        <translation>%1 kan niet naar %2.</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 is leeg.</translation>
    </message>
    <message>
        <source>%1 is not your piece.</source>
        <translation>Op %1 staat niet uw steen.</translation>
    </message>
    <message>
        <source>%1 cannot move: you must capture with %2.</source>
        <translation>%1 kan niet zetten: %2 moet slaan.</translation>
    </message>
    <message>
        <source>%1 cannot move.</source>
        <translation>%1 kan niet zetten.</translation>
    </message>
    <message>
        <source>White has won.</source>
        <translation>Wit heeft gewonnen.</translation>
    </message>
    <message>
        <source>Black has won.</source>
        <translation>Zwart heeft gewonnen.</translation>
    </message>
    <message>
        <source>One move back.</source>
        <translation>Eén zet terug.</translation>
    </message>
    <message>
        <source>One move forward.</source>
        <translation>Eén zet vooruit.</translation>
    </message>
    <message>
        <source>The move is given up.</source>
        <translation>De zet is afgebroken.</translation>
    </message>
    <message>
        <source>%1, white man</source>
        <translation>%1, witte schijf</translation>
    </message>
    <message>
        <source>%1, white king</source>
        <translation>%1, witte dam</translation>
    </message>
    <message>
        <source>%1, black man</source>
        <translation>%1, zwarte schijf</translation>
    </message>
    <message>
        <source>%1, black king</source>
        <translation>%1, zwarte dam</translation>
    </message>
    <message>
        <source>%1, empty</source>
        <translation>%1, leeg</translation>
    </message>
    <message>
        <source>White takes %1, %2 to %3.</source>
        <translation>Wit slaat %1, %2 naar %3.</translation>
    </message>
    <message>
        <source>Black takes %1, %2 to %3.</source>
        <translation>Zwart slaat %1, %2 naar %3.</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>White %1 to %2.</source>
        <translation>Wit %1 naar %2.</translation>
    </message>
    <message>
        <source>Black %1 to %2.</source>
        <translation>Zwart %1 naar %2.</translation>
    </message>
    <message>
        <source>It is crowned.</source>
        <translation>Hij wordt dam.</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 of %2</translation>
    </message>
    <message>
        <source>The computer thinks.</source>
        <translation>De computer denkt na.</translation>
    </message>
</context>
<context>
    <name>MainForm</name>
    <message>
        <source>tavlora v1.0.3</source>
        <translation>tavlora v1.0.3</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Opties</translation>
    </message>
    <message>
        <source>&lt;&lt;</source>
        <translation>&lt;&lt;</translation>
    </message>
    <message>
        <source>&gt;&gt;</source>
        <translation>&gt;&gt;</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>BREAK</source>
        <translation>STOP</translation>
    </message>
    <message>
        <source>Force Move</source>
        <translation>Computerzet</translation>
    </message>
    <message>
        <source>NewGame</source>
        <translation>Nieuw spel</translation>
    </message>
    <message>
        <source> 12/12</source>
        <translation> 12/12</translation>
    </message>
    <message>
        <source>On Board</source>
        <translation>Op het bord</translation>
    </message>
    <message>
        <source>**** THINKING ****</source>
        <translation>*** DENKT NA ***</translation>
    </message>
    <message>
        <source>One move back</source>
        <translation>Eén zet terug</translation>
    </message>
    <message>
        <source>One move forward</source>
        <translation>Eén zet vooruit</translation>
    </message>
    <message>
        <source>Plays the best move found so far; so does the Escape key.</source>
        <translation>Speelt de beste zet die tot nu toe gevonden is; de Escape-toets doet dat ook.</translation>
    </message>
    <message>
        <source>Lets the computer move for the side to move.</source>
        <translation>Laat de computer zetten voor de kleur die aan zet is.</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
</context>
<context>
    <name>fabout</name>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Tavlora v 1.0.3</source>
        <translation>Tavlora v 1.0.3</translation>
    </message>
    <message>
        <source>A king and a man on the board</source>
        <translation>Een dam en een schijf op het bord</translation>
    </message>
    <message>
        <source>A game of draughts for one, two or no players. Rules, search and drawing by the Tavlora project; windows and painting by Qt.</source>
        <translation>Een damspel voor één, twee of geen spelers. Regels, zoekalgoritme en tekeningen van het Tavlora-project; vensters en weergave van Qt.</translation>
    </message>
</context>
<context>
    <name>formStat</name>
    <message>
        <source>statistic</source>
        <translation>Statistiek</translation>
    </message>
    <message>
        <source>Scores</source>
        <translation>Scores</translation>
    </message>
    <message>
        <source>time</source>
        <translation>Tijd</translation>
    </message>
    <message>
        <source>Moves</source>
        <translation>Zetten</translation>
    </message>
    <message>
        <source>MaxLevel</source>
        <translation>Diepte</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Knopen</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Score</translation>
    </message>
</context>
<context>
    <name>fsettings</name>
    <message>
        <source>settings</source>
        <translation>Opties</translation>
    </message>
    <message>
        <source>Give Away</source>
        <translation>Weggeefdammen</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Regels</translation>
    </message>
    <message>
        <source>International</source>
        <translation>Internationaal</translation>
    </message>
    <message>
        <source>American</source>
        <translation>Amerikaans</translation>
    </message>
    <message>
        <source>Polish Traditional</source>
        <translation>Traditioneel Pools</translation>
    </message>
    <message>
        <source>game rules</source>
        <translation>spelregels</translation>
    </message>
    <message>
        <source>Board Size</source>
        <translation>Bord</translation>
    </message>
    <message>
        <source>6 for fun</source>
        <translation>6 voor de lol</translation>
    </message>
    <message>
        <source>8 checkers,brazylian</source>
        <translation>8 checkers, Braziliaans</translation>
    </message>
    <message>
        <source>10 international</source>
        <translation>10 internationaal</translation>
    </message>
    <message>
        <source>12 canadian</source>
        <translation>12 Canadees</translation>
    </message>
    <message>
        <source>board size</source>
        <translation>bordgrootte</translation>
    </message>
    <message>
        <source>level</source>
        <translation>Niveau</translation>
    </message>
    <message>
        <source>Easy 1</source>
        <translation>Makkelijk 1</translation>
    </message>
    <message>
        <source>Easy 2</source>
        <translation>Makkelijk 2</translation>
    </message>
    <message>
        <source>2 sec/move</source>
        <translation>2 s/zet</translation>
    </message>
    <message>
        <source>5 sec/move</source>
        <translation>5 s/zet</translation>
    </message>
    <message>
        <source>10 sec/move</source>
        <translation>10 s/zet</translation>
    </message>
    <message>
        <source>20 sec/move</source>
        <translation>20 s/zet</translation>
    </message>
    <message>
        <source>1 min/move</source>
        <translation>1 min/zet</translation>
    </message>
    <message>
        <source>infinite (until break)</source>
        <translation>onbeperkt (tot STOP)</translation>
    </message>
    <message>
        <source>thinking level</source>
        <translation>denkniveau</translation>
    </message>
    <message>
        <source>Players</source>
        <translation>Spelers</translation>
    </message>
    <message>
        <source>Human-Computer</source>
        <translation>Mens-Computer</translation>
    </message>
    <message>
        <source>Human-Human</source>
        <translation>Mens-Mens</translation>
    </message>
    <message>
        <source>Computer-Computer</source>
        <translation>Computer-Computer</translation>
    </message>
</context>
</TS>
