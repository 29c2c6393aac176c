<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>CommandLine</name>
    <message>
        <source>Tells the options.</source>
        <translation>Nennt die Optionen.</translation>
    </message>
    <message>
        <source>Tells the version.</source>
        <translation>Nennt die Version.</translation>
    </message>
    <message>
        <source>How many times as large as 240 x 320 the window is: a number from 1 to 8 in quarter steps, such as 2 or 1.75; or &quot;larger&quot; or &quot;smaller&quot; than by itself.</source>
        <translation>Wievielmal so groß wie 240 x 320 das Fenster ist: eine Zahl von 1 bis 8 in Viertelschritten, etwa 2 oder 1.75; oder &quot;larger&quot; (größer) oder &quot;smaller&quot; (kleiner) als von selbst.</translation>
    </message>
    <message>
        <source>factor</source>
        <translation>Faktor</translation>
    </message>
    <message>
        <source>Draughts against the computer or another person.
The options of the Qt toolkit, such as -style and -platform, work as well.</source>
        <translation>Dame gegen den Computer oder eine andere Person.
Auch die Optionen von Qt wie -style und -platform gelten.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no option; --help tells those there are.</source>
        <translation>&apos;%1&apos; ist keine Option; --help nennt, welche es gibt.</translation>
    </message>
    <message>
        <source>--scale takes a number from 1 to 8 in quarter steps, &quot;larger&quot; or &quot;smaller&quot;, and not &apos;%1&apos;.</source>
        <translation>--scale nimmt eine Zahl von 1 bis 8 in Viertelschritten, &quot;larger&quot; oder &quot;smaller&quot;, und nicht &apos;%1&apos;.</translation>
    </message>
</context>
<context>
    <name>Draughts</name>
    <message>
        <source>White to move.</source>
        <translation>Weiß ist am Zug.</translation>
    </message>
    <message>
        <source>Black to move.</source>
        <translation>Schwarz ist am Zug.</translation>
    </message>
    <message>
        <source>White %1, black %2.</source>
        <translation>Weiß %1, Schwarz %2.</translation>
    </message>
    <message>
        <source>Board</source>
        <translation>Brett</translation>
    </message>
    <message>
        <source>*** THINKING ***</source>
        <translation>*** DENKT NACH ***</translation>
    </message>
    <message>
        <source>You Must Capture</source>
        <translation>Schlagzwang</translation>
    </message>
    <message>
        <source>Your Move</source>
        <translation>Sie sind am Zug</translation>
    </message>
    <message>
        <source>Game Over</source>
        <translation>Spielende</translation>
    </message>
    <message>
        <source>New game.</source>
        <translation>Neues Spiel.</translation>
    </message>
    <message>
        <source>being taken</source>
        <translation>wird geschlagen</translation>
    </message>
    <message>
        <source>chosen</source>
        <translation>gewählt</translation>
    </message>
    <message>
        <source>offered</source>
        <translation>mögliches Feld</translation>
    </message>
    <message>
        <source>can capture</source>
        <translation>kann schlagen</translation>
    </message>
    <message>
        <source>can move</source>
        <translation>kann ziehen</translation>
    </message>
    <message>
        <source>From %1 to %2.</source>
        <translation>Von %1 nach %2.</translation>
    </message>
    <message>
        <source>%1 cannot go to %2.</source>
        <translation>%1 kann nicht nach %2.</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 ist leer.</translation>
    </message>
    <message>
        <source>%1 is not your piece.</source>
        <translation>Auf %1 steht nicht Ihr Stein.</translation>
    </message>
    <message>
        <source>%1 cannot move: you must capture with %2.</source>
        <translation>%1 kann nicht ziehen: %2 muss schlagen.</translation>
    </message>
    <message>
        <source>%1 cannot move.</source>
        <translation>%1 kann nicht ziehen.</translation>
    </message>
    <message>
        <source>White has won.</source>
        <translation>Weiß hat gewonnen.</translation>
    </message>
    <message>
        <source>Black has won.</source>
        <translation>Schwarz hat gewonnen.</translation>
    </message>
    <message>
        <source>One move back.</source>
        <translation>Einen Zug zurück.</translation>
    </message>
    <message>
        <source>One move forward.</source>
        <translation>Einen Zug vor.</translation>
    </message>
    <message>
        <source>The move is given up.</source>
        <translation>Der Zug ist aufgegeben.</translation>
    </message>
    <message>
        <source>%1, white man</source>
        <translation>%1, weißer Stein</translation>
    </message>
    <message>
        <source>%1, white king</source>
        <translation>%1, weiße Dame</translation>
    </message>
    <message>
        <source>%1, black man</source>
        <translation>%1, schwarzer Stein</translation>
    </message>
    <message>
        <source>%1, black king</source>
        <translation>%1, schwarze Dame</translation>
    </message>
    <message>
        <source>%1, empty</source>
        <translation>%1, leer</translation>
    </message>
    <message>
        <source>White takes %1, %2 to %3.</source>
        <translation>Weiß schlägt %1, %2 nach %3.</translation>
    </message>
    <message>
        <source>Black takes %1, %2 to %3.</source>
        <translation>Schwarz schlägt %1, %2 nach %3.</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>White %1 to %2.</source>
        <translation>Weiß %1 nach %2.</translation>
    </message>
    <message>
        <source>Black %1 to %2.</source>
        <translation>Schwarz %1 nach %2.</translation>
    </message>
    <message>
        <source>It is crowned.</source>
        <translation>Er wird Dame.</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 oder %2</translation>
    </message>
    <message>
        <source>The computer thinks.</source>
        <translation>Der Computer denkt nach.</translation>
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
        <translation>Optionen</translation>
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
        <translation>STOPP</translation>
    </message>
    <message>
        <source>Force Move</source>
        <translation>Computerzug</translation>
    </message>
    <message>
        <source>NewGame</source>
        <translation>Neues Spiel</translation>
    </message>
    <message>
        <source> 12/12</source>
        <translation> 12/12</translation>
    </message>
    <message>
        <source>On Board</source>
        <translation>Auf dem Brett</translation>
    </message>
    <message>
        <source>**** THINKING ****</source>
        <translation>*** DENKT NACH ***</translation>
    </message>
    <message>
        <source>One move back</source>
        <translation>Einen Zug zurück</translation>
    </message>
    <message>
        <source>One move forward</source>
        <translation>Einen Zug vor</translation>
    </message>
    <message>
        <source>Plays the best move found so far; so does the Escape key.</source>
        <translation>Spielt den besten bisher gefundenen Zug; die Escape-Taste tut das auch.</translation>
    </message>
    <message>
        <source>Lets the computer move for the side to move.</source>
        <translation>Lässt den Computer für die Seite ziehen, die am Zug ist.</translation>
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
        <translation>Abbrechen</translation>
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
        <translation>Eine Dame und ein Stein auf dem Brett</translation>
    </message>
    <message>
        <source>A game of draughts for one, two or no players. Rules, search and drawing by the Tavlora project; windows and painting by Qt.</source>
        <translation>Ein Damespiel für eine Person, für zwei oder keine. Regeln, Suche und Zeichnungen vom Tavlora-Projekt; Fenster und Darstellung von Qt.</translation>
    </message>
</context>
<context>
    <name>formStat</name>
    <message>
        <source>statistic</source>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>Scores</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Moves</source>
        <translation>Züge</translation>
    </message>
    <message>
        <source>MaxLevel</source>
        <translation>Tiefe</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Wert</translation>
    </message>
</context>
<context>
    <name>fsettings</name>
    <message>
        <source>settings</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Give Away</source>
        <translation>Schlagdame</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Regeln</translation>
    </message>
    <message>
        <source>International</source>
        <translation>International</translation>
    </message>
    <message>
        <source>American</source>
        <translation>Amerikanisch</translation>
    </message>
    <message>
        <source>Polish Traditional</source>
        <translation>Polnisch traditionell</translation>
    </message>
    <message>
        <source>game rules</source>
        <translation>Spielregeln</translation>
    </message>
    <message>
        <source>Board Size</source>
        <translation>Brett</translation>
    </message>
    <message>
        <source>6 for fun</source>
        <translation>6 zum Spaß</translation>
    </message>
    <message>
        <source>8 checkers,brazylian</source>
        <translation>8 Checkers, brasilianisch</translation>
    </message>
    <message>
        <source>10 international</source>
        <translation>10 international</translation>
    </message>
    <message>
        <source>12 canadian</source>
        <translation>12 kanadisch</translation>
    </message>
    <message>
        <source>board size</source>
        <translation>Brettgröße</translation>
    </message>
    <message>
        <source>level</source>
        <translation>Stufe</translation>
    </message>
    <message>
        <source>Easy 1</source>
        <translation>Leicht 1</translation>
    </message>
    <message>
        <source>Easy 2</source>
        <translation>Leicht 2</translation>
    </message>
    <message>
        <source>2 sec/move</source>
        <translation>2 s/Zug</translation>
    </message>
    <message>
        <source>5 sec/move</source>
        <translation>5 s/Zug</translation>
    </message>
    <message>
        <source>10 sec/move</source>
        <translation>10 s/Zug</translation>
    </message>
    <message>
        <source>20 sec/move</source>
        <translation>20 s/Zug</translation>
    </message>
    <message>
        <source>1 min/move</source>
        <translation>1 min/Zug</translation>
    </message>
    <message>
        <source>infinite (until break)</source>
        <translation>unbegrenzt (bis STOPP)</translation>
    </message>
    <message>
        <source>thinking level</source>
        <translation>Spielstufe</translation>
    </message>
    <message>
        <source>Players</source>
        <translation>Spieler</translation>
    </message>
    <message>
        <source>Human-Computer</source>
        <translation>Mensch-Computer</translation>
    </message>
    <message>
        <source>Human-Human</source>
        <translation>Mensch-Mensch</translation>
    </message>
    <message>
        <source>Computer-Computer</source>
        <translation>Computer-Computer</translation>
    </message>
</context>
</TS>
