<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl">
<context>
    <name>CommandLine</name>
    <message>
        <source>Tells the options.</source>
        <translation>Podaje opcje.</translation>
    </message>
    <message>
        <source>Tells the version.</source>
        <translation>Podaje wersję.</translation>
    </message>
    <message>
        <source>How many times as large as 240 x 320 the window is: a number from 1 to 8 in quarter steps, such as 2 or 1.75; or &quot;larger&quot; or &quot;smaller&quot; than by itself.</source>
        <translation>Ile razy okno jest większe niż 240 x 320: liczba od 1 do 8 co ćwierć, na przykład 2 lub 1.75; albo &quot;larger&quot; (większe) lub &quot;smaller&quot; (mniejsze) niż samo z siebie.</translation>
    </message>
    <message>
        <source>factor</source>
        <translation>krotność</translation>
    </message>
    <message>
        <source>Draughts against the computer or another person.
The options of the Qt toolkit, such as -style and -platform, work as well.</source>
        <translation>Warcaby z komputerem lub z drugą osobą.
Działają też opcje biblioteki Qt, takie jak -style i -platform.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no option; --help tells those there are.</source>
        <translation>&apos;%1&apos; nie jest opcją; --help podaje, jakie są.</translation>
    </message>
    <message>
        <source>--scale takes a number from 1 to 8 in quarter steps, &quot;larger&quot; or &quot;smaller&quot;, and not &apos;%1&apos;.</source>
        <translation>--scale przyjmuje liczbę od 1 do 8 co ćwierć, &quot;larger&quot; lub &quot;smaller&quot;, a nie &apos;%1&apos;.</translation>
    </message>
</context>
<context>
    <name>Draughts</name>
    <message>
        <source>White to move.</source>
        <translation>Ruch białych.</translation>
    </message>
    <message>
        <source>Black to move.</source>
        <translation>Ruch czarnych.</translation>
    </message>
    <message>
        <source>White %1, black %2.</source>
        <translation>Białe %1, czarne %2.</translation>
    </message>
    <message>
        <source>Board</source>
        <translation>Plansza</translation>
    </message>
    <message>
        <source>*** THINKING ***</source>
        <translation>*** MYŚLĘ ***</translation>
    </message>
    <message>
        <source>You Must Capture</source>
        <translation>Bicie obowiązkowe</translation>
    </message>
    <message>
        <source>Your Move</source>
        <translation>Twój ruch</translation>
    </message>
    <message>
        <source>Game Over</source>
        <translation>Koniec gry</translation>
    </message>
    <message>
        <source>New game.</source>
        <translation>Nowa gra.</translation>
    </message>
    <message>
        <source>being taken</source>
        <translation>do zbicia</translation>
    </message>
    <message>
        <source>chosen</source>
        <translation>wybrano</translation>
    </message>
    <message>
        <source>offered</source>
        <translation>możliwe pole</translation>
    </message>
    <message>
        <source>can capture</source>
        <translation>może bić</translation>
    </message>
    <message>
        <source>can move</source>
        <translation>może się ruszyć</translation>
    </message>
    <message>
        <source>From %1 to %2.</source>
        <translation>Z %1 na %2.</translation>
    </message>
    <message>
        <source>%1 cannot go to %2.</source>
        <translation>Z %1 nie można iść na %2.</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 jest puste.</translation>
    </message>
    <message>
        <source>%1 is not your piece.</source>
        <translation>Na %1 nie stoi twoja bierka.</translation>
    </message>
    <message>
        <source>%1 cannot move: you must capture with %2.</source>
        <translation>%1 nie może się ruszyć: bić musi %2.</translation>
    </message>
    <message>
        <source>%1 cannot move.</source>
        <translation>%1 nie może się ruszyć.</translation>
    </message>
    <message>
        <source>White has won.</source>
        <translation>Białe wygrały.</translation>
    </message>
    <message>
        <source>Black has won.</source>
        <translation>Czarne wygrały.</translation>
    </message>
    <message>
        <source>One move back.</source>
        <translation>O ruch wstecz.</translation>
    </message>
    <message>
        <source>One move forward.</source>
        <translation>O ruch naprzód.</translation>
    </message>
    <message>
        <source>The move is given up.</source>
        <translation>Zaniechano ruchu.</translation>
    </message>
    <message>
        <source>%1, white man</source>
        <translation>%1, biały pionek</translation>
    </message>
    <message>
        <source>%1, white king</source>
        <translation>%1, biała damka</translation>
    </message>
    <message>
        <source>%1, black man</source>
        <translation>%1, czarny pionek</translation>
    </message>
    <message>
        <source>%1, black king</source>
        <translation>%1, czarna damka</translation>
    </message>
    <message>
        <source>%1, empty</source>
        <translation>%1, puste</translation>
    </message>
    <message>
        <source>White takes %1, %2 to %3.</source>
        <translation>Białe biją %1, %2 na %3.</translation>
    </message>
    <message>
        <source>Black takes %1, %2 to %3.</source>
        <translation>Czarne biją %1, %2 na %3.</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 i %2</translation>
    </message>
    <message>
        <source>White %1 to %2.</source>
        <translation>Białe %1 na %2.</translation>
    </message>
    <message>
        <source>Black %1 to %2.</source>
        <translation>Czarne %1 na %2.</translation>
    </message>
    <message>
        <source>It is crowned.</source>
        <translation>Powstaje damka.</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 lub %2</translation>
    </message>
    <message>
        <source>The computer thinks.</source>
        <translation>Komputer myśli.</translation>
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
        <translation>Opcje</translation>
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
        <translation>O grze</translation>
    </message>
    <message>
        <source>BREAK</source>
        <translation>STOP</translation>
    </message>
    <message>
        <source>Force Move</source>
        <translation>Wymuś ruch</translation>
    </message>
    <message>
        <source>NewGame</source>
        <translation>Nowa gra</translation>
    </message>
    <message>
        <source> 12/12</source>
        <translation> 12/12</translation>
    </message>
    <message>
        <source>On Board</source>
        <translation>Na planszy</translation>
    </message>
    <message>
        <source>**** THINKING ****</source>
        <translation>*** MYŚLĘ ***</translation>
    </message>
    <message>
        <source>One move back</source>
        <translation>Ruch wstecz</translation>
    </message>
    <message>
        <source>One move forward</source>
        <translation>Ruch naprzód</translation>
    </message>
    <message>
        <source>Plays the best move found so far; so does the Escape key.</source>
        <translation>Wykonuje najlepszy dotąd znaleziony ruch; klawisz Escape robi to samo.</translation>
    </message>
    <message>
        <source>Lets the computer move for the side to move.</source>
        <translation>Komputer wykonuje ruch za stronę, na którą przypada kolej.</translation>
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
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>fabout</name>
    <message>
        <source>About</source>
        <translation>O grze</translation>
    </message>
    <message>
        <source>Tavlora v 1.0.3</source>
        <translation>Tavlora v 1.0.3</translation>
    </message>
    <message>
        <source>A king and a man on the board</source>
        <translation>Damka i pionek na planszy</translation>
    </message>
    <message>
        <source>A game of draughts for one, two or no players. Rules, search and drawing by the Tavlora project; windows and painting by Qt.</source>
        <translation>Warcaby dla jednego gracza, dla dwóch albo bez graczy. Zasady, przeszukiwanie i rysunki: projekt Tavlora; okna i grafika: Qt.</translation>
    </message>
</context>
<context>
    <name>formStat</name>
    <message>
        <source>statistic</source>
        <translation>Statystyka</translation>
    </message>
    <message>
        <source>Scores</source>
        <translation>Oceny</translation>
    </message>
    <message>
        <source>time</source>
        <translation>Czas</translation>
    </message>
    <message>
        <source>Moves</source>
        <translation>Ruchy</translation>
    </message>
    <message>
        <source>MaxLevel</source>
        <translation>Głębokość</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Węzły</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Ocena</translation>
    </message>
</context>
<context>
    <name>fsettings</name>
    <message>
        <source>settings</source>
        <translation>Opcje</translation>
    </message>
    <message>
        <source>Give Away</source>
        <translation>Antywarcaby</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Zasady</translation>
    </message>
    <message>
        <source>International</source>
        <translation>Międzynarodowe</translation>
    </message>
    <message>
        <source>American</source>
        <translation>Amerykańskie</translation>
    </message>
    <message>
        <source>Polish Traditional</source>
        <translation>Polskie tradycyjne</translation>
    </message>
    <message>
        <source>game rules</source>
        <translation>zasady gry</translation>
    </message>
    <message>
        <source>Board Size</source>
        <translation>Plansza</translation>
    </message>
    <message>
        <source>6 for fun</source>
        <translation>6 dla zabawy</translation>
    </message>
    <message>
        <source>8 checkers,brazylian</source>
        <translation>8 checkers, brazylijskie</translation>
    </message>
    <message>
        <source>10 international</source>
        <translation>10 międzynarodowe</translation>
    </message>
    <message>
        <source>12 canadian</source>
        <translation>12 kanadyjskie</translation>
    </message>
    <message>
        <source>board size</source>
        <translation>rozmiar planszy</translation>
    </message>
    <message>
        <source>level</source>
        <translation>Poziom</translation>
    </message>
    <message>
        <source>Easy 1</source>
        <translation>Łatwy 1</translation>
    </message>
    <message>
        <source>Easy 2</source>
        <translation>Łatwy 2</translation>
    </message>
    <message>
        <source>2 sec/move</source>
        <translation>2 s/ruch</translation>
    </message>
    <message>
        <source>5 sec/move</source>
        <translation>5 s/ruch</translation>
    </message>
    <message>
        <source>10 sec/move</source>
        <translation>10 s/ruch</translation>
    </message>
    <message>
        <source>20 sec/move</source>
        <translation>20 s/ruch</translation>
    </message>
    <message>
        <source>1 min/move</source>
        <translation>1 min/ruch</translation>
    </message>
    <message>
        <source>infinite (until break)</source>
        <translation>bez limitu (do STOP)</translation>
    </message>
    <message>
        <source>thinking level</source>
        <translation>poziom gry</translation>
    </message>
    <message>
        <source>Players</source>
        <translation>Gracze</translation>
    </message>
    <message>
        <source>Human-Computer</source>
        <translation>Człowiek-Komputer</translation>
    </message>
    <message>
        <source>Human-Human</source>
        <translation>Człowiek-Człowiek</translation>
    </message>
    <message>
        <source>Computer-Computer</source>
        <translation>Komputer-Komputer</translation>
    </message>
</context>
</TS>
