<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>CardNames</name>
    <message>
        <source>Ace</source>
        <translation>Ass</translation>
    </message>
    <message>
        <source>Jack</source>
        <translation>Bube</translation>
    </message>
    <message>
        <source>Queen</source>
        <translation>Dame</translation>
    </message>
    <message>
        <source>King</source>
        <translation>König</translation>
    </message>
    <message>
        <source>hearts</source>
        <translation>Herz</translation>
    </message>
    <message>
        <source>spades</source>
        <translation>Pik</translation>
    </message>
    <message>
        <source>diamonds</source>
        <translation>Karo</translation>
    </message>
    <message>
        <source>clubs</source>
        <translation>Kreuz</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>a card: its rank, its suit</comment>
        <translation>%2 %1</translation>
    </message>
    <message>
        <source>closed card</source>
        <translation>verdeckte Karte</translation>
    </message>
    <message>
        <source>Tableau %1</source>
        <translation>Tableau %1</translation>
    </message>
    <message>
        <source>Reserve %1</source>
        <translation>Reserve %1</translation>
    </message>
    <message>
        <source>Foundation %1</source>
        <translation>Grundstapel %1</translation>
    </message>
    <message>
        <source>Waste</source>
        <translation>Ablage</translation>
    </message>
    <message>
        <source>Stock</source>
        <translation>Talon</translation>
    </message>
    <message>
        <source>%1, empty</source>
        <comment>a pile</comment>
        <translation>%1, leer</translation>
    </message>
    <message>
        <source>%1, 1 card, %2</source>
        <comment>a pile and its card</comment>
        <translation>%1, 1 Karte, %2</translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln cards, top %2</source>
        <comment>a pile and its top card</comment>
        <translation>
            <numerusform>%1, %Ln Karte, oben %2</numerusform>
            <numerusform>%1, %Ln Karten, oben %2</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, card %2 of %3</source>
        <comment>a pile, from its bottom</comment>
        <translation>%1, Karte %2 von %3</translation>
    </message>
</context>
<context>
    <name>Chart</name>
    <message>
        <source>Score</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>Moves</source>
        <translation>Züge</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Played</source>
        <translation>Gespielt</translation>
    </message>
    <message>
        <source>Won</source>
        <translation>Gewonnen</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Verloren</translation>
    </message>
    <message>
        <source>Nothing played yet</source>
        <translation>Noch nichts gespielt</translation>
    </message>
    <message>
        <source>%1 : %2</source>
        <comment>what is counted, its figure</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a row of a chart, its figures</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a figure, its part of the whole</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>The thin lines are your other wins.</source>
        <translation>Die dünnen Striche sind die anderen Siege.</translation>
    </message>
</context>
<context>
    <name>Dates</name>
    <message>
        <source>%1 %2</source>
        <comment>a month&apos;s short name, a day</comment>
        <translation>%2. %1</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>a month&apos;s short name, the last two digits of a year</comment>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>Engine</name>
    <message>
        <source>an Ace</source>
        <translation>ein Ass</translation>
    </message>
    <message>
        <source>a 2</source>
        <translation>eine 2</translation>
    </message>
    <message>
        <source>a 3</source>
        <translation>eine 3</translation>
    </message>
    <message>
        <source>a 4</source>
        <translation>eine 4</translation>
    </message>
    <message>
        <source>a 5</source>
        <translation>eine 5</translation>
    </message>
    <message>
        <source>a 6</source>
        <translation>eine 6</translation>
    </message>
    <message>
        <source>a 7</source>
        <translation>eine 7</translation>
    </message>
    <message>
        <source>an 8</source>
        <translation>eine 8</translation>
    </message>
    <message>
        <source>a 9</source>
        <translation>eine 9</translation>
    </message>
    <message>
        <source>a 10</source>
        <translation>eine 10</translation>
    </message>
    <message>
        <source>a Jack</source>
        <translation>ein Bube</translation>
    </message>
    <message>
        <source>a Queen</source>
        <translation>eine Dame</translation>
    </message>
    <message>
        <source>a King</source>
        <translation>ein König</translation>
    </message>
    <message>
        <source>2s</source>
        <translation>Zweien</translation>
    </message>
    <message>
        <source>Kings</source>
        <translation>Könige</translation>
    </message>
    <message>
        <source>Aces</source>
        <translation>Asse</translation>
    </message>
    <message>
        <source>down</source>
        <translation>abwärts</translation>
    </message>
    <message>
        <source>down in suit</source>
        <translation>abwärts in der Farbe</translation>
    </message>
    <message>
        <source>up</source>
        <translation>aufwärts</translation>
    </message>
    <message>
        <source>up in suit</source>
        <translation>aufwärts in der Farbe</translation>
    </message>
    <message>
        <source>up or down</source>
        <translation>auf- oder abwärts</translation>
    </message>
    <message>
        <source>up or down in suit</source>
        <translation>auf- oder abwärts in der Farbe</translation>
    </message>
    <message>
        <source>down in alternating colours</source>
        <translation>abwärts abwechselnd rot und schwarz</translation>
    </message>
    <message>
        <source>up in alternating colours</source>
        <translation>aufwärts abwechselnd rot und schwarz</translation>
    </message>
    <message>
        <source>up or down in alternating colours</source>
        <translation>auf- oder abwärts abwechselnd rot und schwarz</translation>
    </message>
    <message>
        <source>down regardless of suit</source>
        <translation>abwärts ohne Rücksicht auf die Farbe</translation>
    </message>
    <message>
        <source>up regardless of suit</source>
        <translation>aufwärts ohne Rücksicht auf die Farbe</translation>
    </message>
    <message>
        <source>up or down regardless of suit</source>
        <translation>auf- oder abwärts ohne Rücksicht auf die Farbe</translation>
    </message>
    <message>
        <source>in any order</source>
        <translation>in beliebiger Reihenfolge</translation>
    </message>
    <message>
        <source>in suit</source>
        <translation>in der Farbe</translation>
    </message>
    <message>
        <source>in alternating colours</source>
        <translation>abwechselnd rot und schwarz</translation>
    </message>
    <message>
        <source>regardless of suit</source>
        <translation>ohne Rücksicht auf die Farbe</translation>
    </message>
    <message>
        <source>four</source>
        <translation>vier</translation>
    </message>
    <message>
        <source>two</source>
        <translation>zwei</translation>
    </message>
    <message>
        <source>Aim</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Auslage</translation>
    </message>
    <message>
        <source>Building</source>
        <translation>Anlegen</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>Empty piles</source>
        <translation>Leere Stapel</translation>
    </message>
    <message>
        <source>Foundations</source>
        <translation>Grundstapel</translation>
    </message>
    <message>
        <source>Stock</source>
        <translation>Talon</translation>
    </message>
    <message>
        <source>Autoplay</source>
        <translation>Automatisch ablegen</translation>
    </message>
    <message numerus="yes">
        <source>Bring all %1 cards to the %n foundations.</source>
        <translation>
            <numerusform>Alle %1 Karten kommen auf den %n Grundstapel.</numerusform>
            <numerusform>Alle %1 Karten kommen auf die %n Grundstapel.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Bring all %1 cards to the foundations, in whole runs of thirteen from King down to Ace.</source>
        <translation>
            <numerusform>Alle %1 Karten kommen auf den Grundstapel, in ganzen Folgen von dreizehn Karten vom König hinab zum Ass.</numerusform>
            <numerusform>Alle %1 Karten kommen auf die Grundstapel, in ganzen Folgen von dreizehn Karten vom König hinab zum Ass.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Bring all %1 cards to the foundations, in whole runs of thirteen from King down to Ace %2.</source>
        <translation>
            <numerusform>Alle %1 Karten kommen auf den Grundstapel, in ganzen Folgen von dreizehn Karten vom König hinab zum Ass %2.</numerusform>
            <numerusform>Alle %1 Karten kommen auf die Grundstapel, in ganzen Folgen von dreizehn Karten vom König hinab zum Ass %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>Half a pack is used: the hearts and the spades, 26 cards.</source>
        <translation>Gespielt wird mit einem halben Blatt: Herz und Pik, 26 Karten.</translation>
    </message>
    <message>
        <source>One pack of 52 cards is used.</source>
        <translation>Gespielt wird mit einem Blatt zu 52 Karten.</translation>
    </message>
    <message>
        <source>Two packs, 104 cards, are used.</source>
        <translation>Gespielt wird mit zwei Blättern, 104 Karten.</translation>
    </message>
    <message numerus="yes">
        <source>%n cards are used, all of them hearts.</source>
        <translation>
            <numerusform>Gespielt wird mit %n Karte, einer Herzkarte.</numerusform>
            <numerusform>Gespielt wird mit %n Karten, alle davon Herz.</numerusform>
        </translation>
    </message>
    <message>
        <source>Half of the cards are hearts, the other half spades.</source>
        <translation>Die Hälfte der Karten ist Herz, die andere Hälfte Pik.</translation>
    </message>
    <message numerus="yes">
        <source>The tableau has %n piles, which begin empty.</source>
        <translation>
            <numerusform>Das Tableau hat einen Stapel, der leer beginnt.</numerusform>
            <numerusform>Das Tableau hat %n Stapel, die leer beginnen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>One card is dealt to the first of the %n piles of the tableau.</source>
        <translation>
            <numerusform>Eine Karte wird auf den einzigen Stapel des Tableaus gegeben.</numerusform>
            <numerusform>Eine Karte wird auf den ersten der %n Stapel des Tableaus gegeben.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 cards are dealt in rows to the %n piles of the tableau.</source>
        <translation>
            <numerusform>%1 Karten werden auf den einzigen Stapel des Tableaus gegeben.</numerusform>
            <numerusform>%1 Karten werden reihenweise auf die %n Stapel des Tableaus gegeben.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The tableau is a staircase of %n piles: one card on the first and one more on each that follows.</source>
        <translation>
            <numerusform>Das Tableau ist eine Treppe aus einem Stapel mit einer Karte.</numerusform>
            <numerusform>Das Tableau ist eine Treppe aus %n Stapeln: eine Karte auf dem ersten und je eine mehr auf jedem folgenden.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 cards are dealt in rows to the %n piles of the tableau, each row at least a pile shorter than the one before.</source>
        <translation>
            <numerusform>%1 Karten werden auf den einzigen Stapel des Tableaus gegeben.</numerusform>
            <numerusform>%1 Karten werden reihenweise auf die %n Stapel des Tableaus gegeben, jede Reihe mindestens um einen Stapel kürzer als die vorige.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Each card is dealt to the pile of its suit: %1 of the %n piles of the tableau hold one suit each, the others begin empty.</source>
        <translation>
            <numerusform>Jede Karte wird auf den Stapel ihrer Farbe gegeben: %1 von %n Stapel des Tableaus enthält je eine Farbe.</numerusform>
            <numerusform>Jede Karte wird auf den Stapel ihrer Farbe gegeben: %1 der %n Stapel des Tableaus enthalten je eine Farbe, die anderen beginnen leer.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Each card is dealt to the pile of its suit: the %n piles of the tableau hold one suit each.</source>
        <translation>
            <numerusform>Jede Karte wird auf den Stapel ihrer Farbe gegeben: Der eine Stapel des Tableaus enthält eine Farbe.</numerusform>
            <numerusform>Jede Karte wird auf den Stapel ihrer Farbe gegeben: Die %n Stapel des Tableaus enthalten je eine Farbe.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>52 cards are dealt, each to the pile of its suit, on the first %1 of the %n piles of the tableau.</source>
        <translation>
            <numerusform>52 Karten werden gegeben, jede auf den Stapel ihrer Farbe, auf den ersten von %1 des %n Stapels des Tableaus.</numerusform>
            <numerusform>52 Karten werden gegeben, jede auf den Stapel ihrer Farbe, auf die ersten %1 der %n Stapel des Tableaus.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %n piles of the tableau hold 4, 5, 6, 7, 8, 7, 6, 5 and 4 cards.</source>
        <translation>
            <numerusform>Der %n Stapel des Tableaus enthält 4, 5, 6, 7, 8, 7, 6, 5 und 4 Karten.</numerusform>
            <numerusform>Die %n Stapel des Tableaus enthalten 4, 5, 6, 7, 8, 7, 6, 5 und 4 Karten.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The first nine of the %n piles of the tableau hold 4, 5, 6, 7, 8, 7, 6, 5 and 4 cards, the others begin empty.</source>
        <translation>
            <numerusform>Die ersten neun von %n Stapel des Tableaus enthalten 4, 5, 6, 7, 8, 7, 6, 5 und 4 Karten, die anderen beginnen leer.</numerusform>
            <numerusform>Die ersten neun der %n Stapel des Tableaus enthalten 4, 5, 6, 7, 8, 7, 6, 5 und 4 Karten, die anderen beginnen leer.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Every card is dealt to one of the %n piles of the tableau, drawn at random.</source>
        <translation>
            <numerusform>Jede Karte wird auf den einzigen Stapel des Tableaus gegeben.</numerusform>
            <numerusform>Jede Karte wird auf einen der %n Stapel des Tableaus gegeben, den das Los bestimmt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Every other card is dealt to one of the %n piles of the tableau, drawn at random.</source>
        <translation>
            <numerusform>Alle übrigen Karten werden auf den einzigen Stapel des Tableaus gegeben.</numerusform>
            <numerusform>Jede übrige Karte wird auf einen der %n Stapel des Tableaus gegeben, den das Los bestimmt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The reserve has %n cells; each holds one card of any kind.</source>
        <translation>
            <numerusform>Die Reserve hat eine Zelle; sie nimmt eine beliebige Karte auf.</numerusform>
            <numerusform>Die Reserve hat %n Zellen; jede nimmt eine beliebige Karte auf.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The reserve has %n cells, %1 of them filled at the start; each holds one card of any kind.</source>
        <translation>
            <numerusform>Die Reserve hat %n Zelle, zu Beginn davon belegt: %1; sie nimmt eine beliebige Karte auf.</numerusform>
            <numerusform>Die Reserve hat %n Zellen, von denen %1 zu Beginn belegt sind; jede nimmt eine beliebige Karte auf.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The reserve has %n cells, all filled at the start; each holds one card of any kind.</source>
        <translation>
            <numerusform>Die Reserve hat eine Zelle, die zu Beginn belegt ist; sie nimmt eine beliebige Karte auf.</numerusform>
            <numerusform>Die Reserve hat %n Zellen, die zu Beginn alle belegt sind; jede nimmt eine beliebige Karte auf.</numerusform>
        </translation>
    </message>
    <message>
        <source>One card lies on the waste from the start.</source>
        <translation>Eine Karte liegt von Anfang an auf der Ablage.</translation>
    </message>
    <message numerus="yes">
        <source>The other %n cards stay on the stock.</source>
        <translation>
            <numerusform>Die letzte Karte bleibt im Talon.</numerusform>
            <numerusform>Die übrigen %n Karten bleiben im Talon.</numerusform>
        </translation>
    </message>
    <message>
        <source>All cards lie open.</source>
        <translation>Alle Karten liegen offen.</translation>
    </message>
    <message>
        <source>All cards but those of the stock lie open.</source>
        <translation>Alle Karten außer denen des Talons liegen offen.</translation>
    </message>
    <message numerus="yes">
        <source>The last %n cards dealt to the tableau lie open, those before them closed.</source>
        <translation>
            <numerusform>Die letzte auf das Tableau gegebene Karte liegt offen, die vor ihr verdeckt.</numerusform>
            <numerusform>Die letzten %n auf das Tableau gegebenen Karten liegen offen, die vor ihnen verdeckt.</numerusform>
        </translation>
    </message>
    <message>
        <source>The top card of each tableau pile lies open, those below it closed.</source>
        <translation>Die oberste Karte jedes Tableaustapels liegt offen, die unter ihr verdeckt.</translation>
    </message>
    <message>
        <source>The cards of the first tableau pile lie open, those of the others closed.</source>
        <translation>Die Karten des ersten Tableaustapels liegen offen, die der anderen verdeckt.</translation>
    </message>
    <message>
        <source>The first three cards of the first four tableau piles lie closed, the others open.</source>
        <translation>Die ersten drei Karten der ersten vier Tableaustapel liegen verdeckt, die anderen offen.</translation>
    </message>
    <message>
        <source>A closed card is opened when the card on it leaves.</source>
        <translation>Eine verdeckte Karte wird aufgedeckt, sobald die Karte über ihr weg ist.</translation>
    </message>
    <message>
        <source>Tableau piles are built %1.</source>
        <translation>Die Tableaustapel werden %1 gebaut.</translation>
    </message>
    <message>
        <source>No card can be laid on a card of the tableau.</source>
        <translation>Auf eine Karte des Tableaus kann keine Karte gelegt werden.</translation>
    </message>
    <message>
        <source>Ranks go round: a King may lie on an Ace.</source>
        <translation>Die Ränge laufen im Kreis: Ein König darf auf einem Ass liegen.</translation>
    </message>
    <message>
        <source>Ranks go round: an Ace may lie on a King.</source>
        <translation>Die Ränge laufen im Kreis: Ein Ass darf auf einem König liegen.</translation>
    </message>
    <message>
        <source>Ranks go round: a King and an Ace may lie on one another.</source>
        <translation>Die Ränge laufen im Kreis: König und Ass dürfen aufeinander liegen.</translation>
    </message>
    <message>
        <source>Cards are moved one at a time.</source>
        <translation>Karten werden einzeln bewegt.</translation>
    </message>
    <message>
        <source>Cards at the end of a pile that run %1 can be moved together, however many they are.</source>
        <translation>Karten am Ende eines Stapels, die %1 aufeinanderliegen, können gemeinsam bewegt werden, gleich wie viele es sind.</translation>
    </message>
    <message>
        <source>Cards at the end of a pile that run %1 can be moved together, as many as the free places allow: one more than the free reserve cells, times one more than the empty tableau piles.</source>
        <translation>Karten am Ende eines Stapels, die %1 aufeinanderliegen, können gemeinsam bewegt werden, so viele die freien Plätze erlauben: eine mehr als freie Reservezellen, mal eins mehr als leere Tableaustapel.</translation>
    </message>
    <message>
        <source>Cards at the end of a pile that run %1 can be moved together, as many as the free places allow: one more than the empty tableau piles.</source>
        <translation>Karten am Ende eines Stapels, die %1 aufeinanderliegen, können gemeinsam bewegt werden, so viele die freien Plätze erlauben: eine mehr als leere Tableaustapel.</translation>
    </message>
    <message>
        <source>An empty tableau pile takes any card or group.</source>
        <translation>Ein leerer Tableaustapel nimmt jede Karte oder Gruppe auf.</translation>
    </message>
    <message>
        <source>An empty tableau pile takes any card.</source>
        <translation>Ein leerer Tableaustapel nimmt jede Karte auf.</translation>
    </message>
    <message>
        <source>An empty tableau pile takes only %1.</source>
        <translation>In einen leeren Tableaustapel kommt nur %1.</translation>
    </message>
    <message>
        <source>An empty tableau pile takes only the rank just below the base rank.</source>
        <translation>Ein leerer Tableaustapel nimmt nur den Rang auf, der dem Grundrang unmittelbar vorausgeht.</translation>
    </message>
    <message>
        <source>An empty tableau pile takes no card.</source>
        <translation>Ein leerer Tableaustapel nimmt keine Karte auf.</translation>
    </message>
    <message>
        <source>The foundations take whole runs only.</source>
        <translation>Die Grundstapel nehmen nur ganze Folgen auf.</translation>
    </message>
    <message>
        <source>The foundations are built %1 until they hold thirteen cards.</source>
        <translation>Die Grundstapel werden %1 gebaut, bis sie dreizehn Karten enthalten.</translation>
    </message>
    <message>
        <source>The first two foundations are built %1, the others down in suit, until they hold thirteen cards.</source>
        <translation>Die ersten beiden Grundstapel werden %1 gebaut, die anderen abwärts in der Farbe, bis sie dreizehn Karten enthalten.</translation>
    </message>
    <message>
        <source>Ranks go round: after a King comes an Ace.</source>
        <translation>Die Ränge laufen im Kreis: Auf einen König folgt ein Ass.</translation>
    </message>
    <message>
        <source>Ranks go round: after an Ace comes a King.</source>
        <translation>Die Ränge laufen im Kreis: Auf ein Ass folgt ein König.</translation>
    </message>
    <message>
        <source>Ranks go round: upwards an Ace follows a King, downwards a King an Ace.</source>
        <translation>Die Ränge laufen im Kreis: Aufwärts folgt auf einen König ein Ass, abwärts auf ein Ass ein König.</translation>
    </message>
    <message>
        <source>They begin empty.</source>
        <translation>Sie beginnen leer.</translation>
    </message>
    <message>
        <source>They begin empty, each with an Ace.</source>
        <translation>Sie sind zunächst leer und beginnen jeweils mit einem Ass.</translation>
    </message>
    <message numerus="yes">
        <source>All %n %1 lie there from the start.</source>
        <translation>
            <numerusform>Von Anfang an liegt dort eine Karte (%n) des Rangs %1.</numerusform>
            <numerusform>Alle %n %1 liegen von Anfang an dort.</numerusform>
        </translation>
    </message>
    <message>
        <source>Both %1 lie there from the start.</source>
        <translation>Beide %1 liegen von Anfang an dort.</translation>
    </message>
    <message numerus="yes">
        <source>%n Aces lie there from the start; an empty foundation takes another.</source>
        <translation>
            <numerusform>Ein Ass liegt von Anfang an dort; ein leerer Grundstapel nimmt ein weiteres auf.</numerusform>
            <numerusform>%n Asse liegen von Anfang an dort; ein leerer Grundstapel nimmt ein weiteres auf.</numerusform>
        </translation>
    </message>
    <message>
        <source>Aces lie on the first half of them from the start, Kings on the others.</source>
        <translation>Auf der ersten Hälfte von ihnen liegen von Anfang an Asse, auf den anderen Könige.</translation>
    </message>
    <message>
        <source>An Ace lies on the first of them from the start, on each that follows the next rank, on the last %1.</source>
        <translation>Auf dem ersten von ihnen liegt von Anfang an ein Ass, auf jedem folgenden der nächste Rang, auf dem letzten %1.</translation>
    </message>
    <message numerus="yes">
        <source>The first card of the deal sets the base rank; %n cards of that rank lie there from the start, and every foundation begins with it.</source>
        <translation>
            <numerusform>Die erste gegebene Karte bestimmt den Grundrang und liegt von Anfang an dort; jeder Grundstapel beginnt mit diesem Rang.</numerusform>
            <numerusform>Die erste gegebene Karte bestimmt den Grundrang; %n Karten dieses Rangs liegen von Anfang an dort, und jeder Grundstapel beginnt mit ihm.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The first %n cards of the deal start them, whatever they are.</source>
        <translation>
            <numerusform>Die erste gegebene Karte eröffnet sie, welche es auch ist.</numerusform>
            <numerusform>Die ersten %n gegebenen Karten eröffnen sie, welche es auch sind.</numerusform>
        </translation>
    </message>
    <message>
        <source>The top card of a foundation may be taken back.</source>
        <translation>Die oberste Karte eines Grundstapels darf zurückgenommen werden.</translation>
    </message>
    <message>
        <source>The stock lies open; its top card can be moved like a card of the tableau.</source>
        <translation>Der Talon liegt offen; seine oberste Karte kann wie eine Karte des Tableaus bewegt werden.</translation>
    </message>
    <message>
        <source>A click on the stock deals one card to each tableau pile, whatever lies there.</source>
        <translation>Ein Klick auf den Talon gibt eine Karte auf jeden Tableaustapel, was auch immer dort liegt.</translation>
    </message>
    <message>
        <source>A click on the stock turns its top card over onto the waste, whose top card can be moved.</source>
        <translation>Ein Klick auf den Talon deckt dessen oberste Karte auf die Ablage auf, deren oberste Karte bewegt werden kann.</translation>
    </message>
    <message>
        <source>The stock is gone through once.</source>
        <translation>Der Talon wird einmal durchgespielt.</translation>
    </message>
    <message>
        <source>When the stock is empty, a click on its place turns the waste over, as often as you like.</source>
        <translation>Ist der Talon leer, dreht ein Klick auf seinen Platz die Ablage wieder um, beliebig oft.</translation>
    </message>
    <message>
        <source>A finished run goes to a foundation by itself, always.</source>
        <translation>Eine fertige Folge geht stets von selbst auf einen Grundstapel.</translation>
    </message>
    <message>
        <source>No card goes up by itself in this game.</source>
        <translation>In diesem Spiel geht keine Karte von selbst auf einen Grundstapel.</translation>
    </message>
    <message>
        <source>With Autoplay on, after each move every card that fits a foundation goes up by itself.</source>
        <translation>Ist „Automatisch ablegen“ eingeschaltet, geht nach jedem Zug jede Karte, die auf einen Grundstapel passt, von selbst dorthin.</translation>
    </message>
    <message>
        <source>Initial Shuffle</source>
        <translation>Mischen zu Beginn</translation>
    </message>
    <message>
        <source>Card Up</source>
        <translation>Karte aufnehmen</translation>
    </message>
    <message>
        <source>Card Down</source>
        <translation>Karte ablegen</translation>
    </message>
    <message>
        <source>Autoplay Move</source>
        <translation>Automatischer Zug</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Game Won</source>
        <translation>Spiel gewonnen</translation>
    </message>
    <message>
        <source>0 and %1</source>
        <translation>0 und %1</translation>
    </message>
    <message>
        <source>Please enter a number between 0 and %1</source>
        <translation>Bitte eine Zahl zwischen 0 und %1 eingeben.</translation>
    </message>
    <message>
        <source>The favorite could not be written to the file
%1</source>
        <translation>Der Favorit konnte nicht in diese Datei geschrieben werden:
%1</translation>
    </message>
    <message>
        <source>Game &lt;%1&gt; Successfully Added to Favorites Under &lt;%2&gt; Folder</source>
        <translation>Das Spiel &lt;%1&gt; wurde im Ordner &lt;%2&gt; zu den Favoriten hinzugefügt.</translation>
    </message>
    <message>
        <source>The favorites stay, because this file could not be removed:
%1</source>
        <translation>Die Favoriten bleiben erhalten, weil diese Datei nicht entfernt werden konnte:
%1</translation>
    </message>
    <message>
        <source>Recent Games List has been Cleared.</source>
        <translation>Die Liste der zuletzt gespielten Spiele wurde geleert.</translation>
    </message>
    <message>
        <source>Are you sure you want to clear the Recent Games List ?</source>
        <translation>Die Liste der zuletzt gespielten Spiele wirklich leeren?</translation>
    </message>
    <message>
        <source>Score :%1</source>
        <translation>Punkte: %1</translation>
    </message>
    <message>
        <source>Time :%1</source>
        <translation>Zeit: %1</translation>
    </message>
    <message>
        <source>Moves :%1</source>
        <translation>Züge: %1</translation>
    </message>
    <message>
        <source>The result of this game could not be written to the file
%1</source>
        <translation>Das Ergebnis dieses Spiels konnte nicht in diese Datei geschrieben werden:
%1</translation>
    </message>
    <message>
        <source> Game : %1</source>
        <translation> Spiel: %1</translation>
    </message>
    <message>
        <source> Player : %1</source>
        <translation> Spieler: %1</translation>
    </message>
    <message>
        <source> Time : %1</source>
        <translation> Zeit: %1</translation>
    </message>
    <message>
        <source> Moves : %1</source>
        <translation> Züge: %1</translation>
    </message>
    <message>
        <source> Score : %1</source>
        <translation> Punkte: %1</translation>
    </message>
    <message>
        <source>Maximum 20 Players Only!</source>
        <translation>Höchstens 20 Spieler sind möglich!</translation>
    </message>
    <message>
        <source>Please Enter a Valid Name</source>
        <translation>Bitte einen gültigen Namen eingeben.</translation>
    </message>
    <message>
        <source>Player Exists !</source>
        <translation>Diesen Spieler gibt es schon!</translation>
    </message>
    <message>
        <source>The players stay as they were, because the settings can&apos;t be written.</source>
        <translation>Die Spieler bleiben, wie sie waren, weil die Einstellungen nicht geschrieben werden können.</translation>
    </message>
    <message>
        <source>The player keeps the old name, because this file can&apos;t be renamed:
%1</source>
        <translation>Der Spieler behält den alten Namen, weil diese Datei nicht umbenannt werden kann:
%1</translation>
    </message>
    <message>
        <source>The player stays, because this file can&apos;t be removed:
%1</source>
        <translation>Der Spieler bleibt, weil diese Datei nicht entfernt werden kann:
%1</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this player</source>
        <translation>Diesen Spieler wirklich löschen?</translation>
    </message>
    <message>
        <source>These files could not be removed, and their results stay:
%1</source>
        <translation>Diese Dateien konnten nicht entfernt werden, und ihre Ergebnisse bleiben erhalten:
%1</translation>
    </message>
    <message>
        <source>Statistics, High Score and Log have been Cleared.</source>
        <translation>Statistik, Bestenliste und Protokoll wurden gelöscht.</translation>
    </message>
    <message>
        <source>These files of results can&apos;t be read, and their games are missing:
%1</source>
        <translation>Diese Ergebnisdateien können nicht gelesen werden, und ihre Spiele fehlen:
%1</translation>
    </message>
    <message>
        <source>Statistics Successfully Exported to %1</source>
        <translation>Die Statistik wurde exportiert nach %1</translation>
    </message>
    <message>
        <source>Are you sure you want to clear the Statistics, High Score and Log for all Players and all Games ?</source>
        <translation>Statistik, Bestenliste und Protokoll aller Spieler und aller Spiele wirklich löschen?</translation>
    </message>
    <message>
        <source>Game No</source>
        <translation>Spiel-Nr.</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Läuft</translation>
    </message>
    <message>
        <source>Time Elapsed : %1</source>
        <translation>Verstrichene Zeit: %1</translation>
    </message>
    <message>
        <source>Started : %1</source>
        <translation>Begonnen: %1</translation>
    </message>
    <message>
        <source>Games Played : %1</source>
        <translation>Gespielte Spiele: %1</translation>
    </message>
    <message>
        <source>Games Won : %1</source>
        <translation>Gewonnene Spiele: %1</translation>
    </message>
    <message>
        <source>Games Lost : %1</source>
        <translation>Verlorene Spiele: %1</translation>
    </message>
    <message>
        <source>Total Score : %1</source>
        <translation>Punkte insgesamt: %1</translation>
    </message>
    <message>
        <source>Total Moves : %1</source>
        <translation>Züge insgesamt: %1</translation>
    </message>
    <message>
        <source>Game Started : %1</source>
        <translation>Spielbeginn: %1</translation>
    </message>
    <message>
        <source>Game : %1</source>
        <translation>Spiel: %1</translation>
    </message>
    <message>
        <source>Game Number : %1</source>
        <translation>Spielnummer: %1</translation>
    </message>
    <message>
        <source>Score : %1</source>
        <translation>Punkte: %1</translation>
    </message>
    <message>
        <source>Moves : %1</source>
        <translation>Züge: %1</translation>
    </message>
    <message>
        <source>Player Name : %1</source>
        <translation>Spieler: %1</translation>
    </message>
    <message>
        <source>%1 (Pile %2, Card %3)</source>
        <translation>%1 (Stapel %2, Karte %3)</translation>
    </message>
    <message>
        <source>Tableau</source>
        <translation>Tableau</translation>
    </message>
    <message>
        <source>Waste</source>
        <translation>Ablage</translation>
    </message>
    <message>
        <source>Foundation</source>
        <translation>Grundstapel</translation>
    </message>
    <message>
        <source>Reserve</source>
        <translation>Reserve</translation>
    </message>
    <message>
        <source>Game Number</source>
        <translation>Spielnummer</translation>
    </message>
    <message>
        <source>Show Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Last 3 Days</source>
        <translation>Letzte 3 Tage</translation>
    </message>
    <message>
        <source>Last 7 Days</source>
        <translation>Letzte 7 Tage</translation>
    </message>
    <message>
        <source>Last 30 Days</source>
        <translation>Letzte 30 Tage</translation>
    </message>
    <message>
        <source>Last 3 Months</source>
        <translation>Letzte 3 Monate</translation>
    </message>
    <message>
        <source>Last 5 Months</source>
        <translation>Letzte 5 Monate</translation>
    </message>
    <message>
        <source>Show All</source>
        <translation>Alle Zeiten</translation>
    </message>
    <message>
        <source>S No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Spieler</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Spiel</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Moves</source>
        <translation>Züge</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Ausgang</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Game No.</source>
        <translation>Spiel-Nr.</translation>
    </message>
    <message>
        <source>Won</source>
        <translation>Gewonnen</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Verloren</translation>
    </message>
    <message>
        <source>Total Time : %1</source>
        <translation>Zeit insgesamt: %1</translation>
    </message>
    <message>
        <source>Moves Per Game : %1</source>
        <translation>Züge pro Spiel: %1</translation>
    </message>
    <message>
        <source>Score Per Game : %1</source>
        <translation>Punkte pro Spiel: %1</translation>
    </message>
    <message>
        <source>Time Per Game : %1</source>
        <translation>Zeit pro Spiel: %1</translation>
    </message>
    <message>
        <source>Games Per Hour : %1</source>
        <translation>Spiele pro Stunde: %1</translation>
    </message>
    <message>
        <source>Moves Per Hour : %1</source>
        <translation>Züge pro Stunde: %1</translation>
    </message>
    <message>
        <source>Score Per Hour : %1</source>
        <translation>Punkte pro Stunde: %1</translation>
    </message>
    <message>
        <source>Winning Percentage : %1%</source>
        <translation>Gewinnquote: %1%</translation>
    </message>
    <message>
        <source>Last 5 Days</source>
        <translation>Letzte 5 Tage</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Last 10 Days</source>
        <translation>Letzte 10 Tage</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Monat</translation>
    </message>
    <message>
        <source>Last 10 Months</source>
        <translation>Letzte 10 Monate</translation>
    </message>
    <message>
        <source>Last 5 Years</source>
        <translation>Letzte 5 Jahre</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>Played</source>
        <translation>Gespielt</translation>
    </message>
    <message>
        <source>Perc</source>
        <translation>Quote</translation>
    </message>
    <message>
        <source>Your %1st fastest of %2</source>
        <translation>Platz %1 von %2 nach Zeit</translation>
    </message>
    <message>
        <source>Your %1nd fastest of %2</source>
        <translation>Platz %1 von %2 nach Zeit</translation>
    </message>
    <message>
        <source>Your %1rd fastest of %2</source>
        <translation>Platz %1 von %2 nach Zeit</translation>
    </message>
    <message>
        <source>Your %1th fastest of %2</source>
        <translation>Platz %1 von %2 nach Zeit</translation>
    </message>
    <message>
        <source>Your fastest of %1</source>
        <translation>Schnellster Sieg von %1</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;New Game</source>
        <translation>&amp;Neues Spiel</translation>
    </message>
    <message>
        <source>&amp;Select Game</source>
        <translation>Spiel &amp;auswählen</translation>
    </message>
    <message>
        <source>&amp;Restart Game</source>
        <translation>Spiel neu &amp;starten</translation>
    </message>
    <message>
        <source>&amp;Close Game</source>
        <translation>Spiel s&amp;chließen</translation>
    </message>
    <message>
        <source>Select a Number</source>
        <translation>Nummer wählen</translation>
    </message>
    <message>
        <source>Recent Games</source>
        <translation>Zuletzt gespielt</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Game</source>
        <translation>&amp;Spiel</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Autoplay</source>
        <translation>Automatisch ablegen</translation>
    </message>
    <message>
        <source>U&amp;ndo All</source>
        <translation>&amp;Alles rückgängig</translation>
    </message>
    <message>
        <source>R&amp;edo All</source>
        <translation>A&amp;lles wiederholen</translation>
    </message>
    <message>
        <source>View Toolbar</source>
        <translation>Werkzeugleiste anzeigen</translation>
    </message>
    <message>
        <source>&amp;Replay</source>
        <translation>&amp;Wiedergabe</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>&amp;Vorwärts</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>Replay &amp;All</source>
        <translation>&amp;Alles wiedergeben</translation>
    </message>
    <message>
        <source>Sto&amp;p</source>
        <translation>&amp;Stopp</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Favoriten</translation>
    </message>
    <message>
        <source>&amp;Add to Favorites</source>
        <translation>Zu Favoriten &amp;hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Organize Favorites</source>
        <translation>Favoriten &amp;verwalten</translation>
    </message>
    <message>
        <source>&amp;Play from Favorites</source>
        <translation>Aus Favoriten &amp;spielen</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>&amp;Game Statistics</source>
        <translation>&amp;Spielstatistik</translation>
    </message>
    <message>
        <source>&amp;Session Statistics</source>
        <translation>Si&amp;tzungsstatistik</translation>
    </message>
    <message>
        <source>&amp;High Scores</source>
        <translation>&amp;Bestenliste</translation>
    </message>
    <message>
        <source>&amp;Log Statistics</source>
        <translation>&amp;Protokoll</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>E&amp;xtras</translation>
    </message>
    <message>
        <source>Customize</source>
        <translation>Anpassen</translation>
    </message>
    <message>
        <source>&amp;Players</source>
        <translation>&amp;Spieler</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>Spiel&amp;verlauf</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Regeln</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>About %1...</source>
        <translation>Über %1 …</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>Rules</source>
        <translation>Regeln</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>How to play</source>
        <translation>So wird gespielt</translation>
    </message>
    <message>
        <source>Words of patience</source>
        <translation>Begriffe der Patience</translation>
    </message>
</context>
<context>
    <name>Questions</name>
    <message>
        <source>Export Statistics</source>
        <translation>Statistik exportieren</translation>
    </message>
    <message>
        <source>Text File (*.txt)</source>
        <translation>Textdatei (*.txt)</translation>
    </message>
</context>
<context>
    <name>Scores</name>
    <message>
        <source>Reading the results...</source>
        <translation>Die Ergebnisse werden gelesen …</translation>
    </message>
    <message>
        <source>Writing the results...</source>
        <translation>Die Ergebnisse werden geschrieben …</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>%1 is no plain file; the settings of this run aren&apos;t kept.</source>
        <translation>%1 ist keine gewöhnliche Datei; die Einstellungen dieses Laufs gehen verloren.</translation>
    </message>
</context>
<context>
    <name>Start</name>
    <message>
        <source>Varnello can&apos;t start: the toolkit can&apos;t use the display. It says:</source>
        <translation>Varnello kann nicht starten: Das Toolkit kann die Anzeige nicht verwenden. Es meldet:</translation>
    </message>
    <message>
        <source>Varnello can&apos;t start: there is no graphical display. The toolkit says:</source>
        <translation>Varnello kann nicht starten: Es gibt keine grafische Anzeige. Das Toolkit meldet:</translation>
    </message>
    <message>
        <source>Varnello doesn&apos;t know &quot;%1&quot;; see varnello --help.</source>
        <translation>Varnello kennt „%1“ nicht; siehe varnello --help.</translation>
    </message>
    <message>
        <source>Varnello plays patience card games.

usage: varnello [toolkit option...]
       varnello --help | --version</source>
        <translation>Varnello ist eine Sammlung von Patiencen.

Aufruf: varnello [Option des Toolkits …]
        varnello --help | --version</translation>
    </message>
</context>
<context>
    <name>varnello::AboutDialog</name>
    <message>
        <source>About %1</source>
        <translation>Über %1</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Patience for a quiet hour. The cards will wait.</source>
        <translation>Patience für eine ruhige Stunde. Die Karten warten.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License,
version 3 or later</source>
        <translation>Freie Software unter der GNU General Public License,
Version 3 oder später</translation>
    </message>
</context>
<context>
    <name>varnello::CustomizeDialog</name>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Brown</source>
        <translation>Braun</translation>
    </message>
    <message>
        <source>Chocolate</source>
        <translation>Schokolade</translation>
    </message>
    <message>
        <source>Corn Flower</source>
        <translation>Kornblume</translation>
    </message>
    <message>
        <source>Crimson</source>
        <translation>Karmesin</translation>
    </message>
    <message>
        <source>Dark Blue</source>
        <translation>Dunkelblau</translation>
    </message>
    <message>
        <source>Dark Green</source>
        <translation>Dunkelgrün</translation>
    </message>
    <message>
        <source>Dark Magenta</source>
        <translation>Dunkelmagenta</translation>
    </message>
    <message>
        <source>Dark Olive Green</source>
        <translation>Dunkles Olivgrün</translation>
    </message>
    <message>
        <source>Dark Red</source>
        <translation>Dunkelrot</translation>
    </message>
    <message>
        <source>Dark Slate Blue</source>
        <translation>Dunkles Schieferblau</translation>
    </message>
    <message>
        <source>Dark Slate Gray</source>
        <translation>Dunkles Schiefergrau</translation>
    </message>
    <message>
        <source>Dark Violet</source>
        <translation>Dunkelviolett</translation>
    </message>
    <message>
        <source>Deep Pink</source>
        <translation>Tiefrosa</translation>
    </message>
    <message>
        <source>Deep Sky Blue</source>
        <translation>Tiefes Himmelblau</translation>
    </message>
    <message>
        <source>Forest Green</source>
        <translation>Waldgrün</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Indigo</source>
        <translation>Indigo</translation>
    </message>
    <message>
        <source>Orange Red</source>
        <translation>Orangerot</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Purpur</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Saddle Brown</source>
        <translation>Sattelbraun</translation>
    </message>
    <message>
        <source>Sea Green</source>
        <translation>Meergrün</translation>
    </message>
    <message>
        <source>Sienna</source>
        <translation>Siena</translation>
    </message>
    <message>
        <source>Tomato</source>
        <translation>Tomate</translation>
    </message>
    <message>
        <source>Card Moving Speed</source>
        <translation>Tempo beim Bewegen</translation>
    </message>
    <message>
        <source>Undo/Redo Speed</source>
        <translation>Tempo von Rückgängig/Wiederholen</translation>
    </message>
    <message>
        <source>Undoall/Redoall Speed</source>
        <translation>Tempo von Alles rückgängig/wiederholen</translation>
    </message>
    <message>
        <source>Replay Speed</source>
        <translation>Tempo der Wiedergabe</translation>
    </message>
    <message>
        <source>Show Time</source>
        <translation>Zeit anzeigen</translation>
    </message>
    <message>
        <source>Show Score</source>
        <translation>Punkte anzeigen</translation>
    </message>
    <message>
        <source>Show Moves</source>
        <translation>Züge anzeigen</translation>
    </message>
    <message>
        <source>Background preview</source>
        <translation>Vorschau des Hintergrunds</translation>
    </message>
    <message>
        <source>&amp;Fade Background</source>
        <translation>&amp;Verlauf im Hintergrund</translation>
    </message>
    <message>
        <source>Colors..</source>
        <translation>Farben …</translation>
    </message>
    <message>
        <source>Deck preview</source>
        <translation>Vorschau der Rückseite</translation>
    </message>
    <message>
        <source>Customize</source>
        <translation>Anpassen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Decks</source>
        <translation>Rückseiten</translation>
    </message>
    <message>
        <source>Animation &amp;&amp; Sounds</source>
        <translation>Animation &amp;&amp; Töne</translation>
    </message>
    <message>
        <source>Counters</source>
        <translation>Zähler</translation>
    </message>
    <message>
        <source>Random Range</source>
        <translation>Zufallsbereich</translation>
    </message>
    <message>
        <source>Random Range Selection between 0 and </source>
        <translation>Zufällige Spielnummer zwischen 0 und </translation>
    </message>
    <message>
        <source>Recent List</source>
        <translation>Zuletzt gespielt</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Clear  Recent Games List</source>
        <translation>Liste zuletzt gespielter Spiele leeren</translation>
    </message>
    <message>
        <source>Game Statistics</source>
        <translation>Spielstatistik</translation>
    </message>
    <message>
        <source>Export Statistics</source>
        <translation>Statistik exportieren</translation>
    </message>
    <message>
        <source>Clear Statistics</source>
        <translation>Statistik löschen</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>Langsam</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Schnell</translation>
    </message>
    <message>
        <source>Select Sound</source>
        <translation>Töne auswählen</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>a group of looks, a number</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Backgrounds</source>
        <translation>Hintergründe</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Custom Color</source>
        <translation>Eigene Farbe</translation>
    </message>
    <message>
        <source>Bricks</source>
        <translation>Ziegel</translation>
    </message>
    <message>
        <source>Marbles</source>
        <translation>Marmor</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Rocks</source>
        <translation>Felsen</translation>
    </message>
    <message>
        <source>Stars</source>
        <translation>Sterne</translation>
    </message>
    <message>
        <source>Surfaces</source>
        <translation>Oberflächen</translation>
    </message>
    <message>
        <source>Water</source>
        <translation>Wasser</translation>
    </message>
    <message>
        <source>Wood</source>
        <translation>Holz</translation>
    </message>
    <message>
        <source>Flowers</source>
        <translation>Blumen</translation>
    </message>
    <message>
        <source>Garden</source>
        <translation>Garten</translation>
    </message>
    <message>
        <source>Geometry</source>
        <translation>Geometrie</translation>
    </message>
    <message>
        <source>Misc</source>
        <translation>Verschiedenes</translation>
    </message>
    <message>
        <source>Nature</source>
        <translation>Natur</translation>
    </message>
</context>
<context>
    <name>varnello::FinishDialog</name>
    <message>
        <source>Congrats</source>
        <translation>Glückwunsch</translation>
    </message>
    <message>
        <source>New Game</source>
        <translation>Neues Spiel</translation>
    </message>
    <message>
        <source>Select Game</source>
        <translation>Spiel auswählen</translation>
    </message>
    <message>
        <source>Restart Game</source>
        <translation>Spiel neu starten</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>High Score</source>
        <translation>Bestenliste</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Score, moves and time</source>
        <translation>Punkte, Züge und Zeit</translation>
    </message>
</context>
<context>
    <name>varnello::GameStatDialog</name>
    <message>
        <source>Nothing played yet. Finish your first game, and its story begins here.</source>
        <translation>Noch nichts gespielt. Mit dem ersten beendeten Spiel beginnt hier seine Geschichte.</translation>
    </message>
    <message>
        <source>Won in a row by %1: %2 now, %3 at best</source>
        <translation>Von %1 in Folge gewonnen: derzeit %2, höchstens %3</translation>
    </message>
    <message>
        <source>Games</source>
        <translation>Spiele</translation>
    </message>
    <message>
        <source>Players</source>
        <translation>Spieler</translation>
    </message>
    <message>
        <source>Games won and lost</source>
        <translation>Gewonnene und verlorene Spiele</translation>
    </message>
    <message>
        <source>Total score, moves and time</source>
        <translation>Punkte, Züge und Zeit insgesamt</translation>
    </message>
    <message>
        <source>Won and lost of the game</source>
        <translation>Gewonnen und verloren bei diesem Spiel</translation>
    </message>
    <message>
        <source>The first games one by one</source>
        <translation>Die ersten Spiele einzeln</translation>
    </message>
    <message>
        <source>Played and won over time</source>
        <translation>Gespielt und gewonnen im Lauf der Zeit</translation>
    </message>
    <message>
        <source>Score, moves and time over time</source>
        <translation>Punkte, Züge und Zeit im Lauf der Zeit</translation>
    </message>
    <message>
        <source>Won and lost of the player</source>
        <translation>Gewonnen und verloren von diesem Spieler</translation>
    </message>
    <message>
        <source>Score, moves and time of the player</source>
        <translation>Punkte, Züge und Zeit dieses Spielers</translation>
    </message>
    <message>
        <source>Game Statistics</source>
        <translation>Spielstatistik</translation>
    </message>
    <message>
        <source>General Summary</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Game-wise</source>
        <translation>Nach Spiel</translation>
    </message>
    <message>
        <source>Date-wise</source>
        <translation>Nach Zeit</translation>
    </message>
    <message>
        <source>Player-wise</source>
        <translation>Nach Spieler</translation>
    </message>
    <message>
        <source>General summary</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Game shown in the charts</source>
        <translation>Spiel in den Diagrammen</translation>
    </message>
    <message>
        <source>Time shown</source>
        <translation>Gezeigter Zeitraum</translation>
    </message>
    <message>
        <source>Days, months or years</source>
        <translation>Tage, Monate oder Jahre</translation>
    </message>
    <message>
        <source>Player shown in the charts</source>
        <translation>Spieler in den Diagrammen</translation>
    </message>
    <message>
        <source>Clear Statistics</source>
        <translation>Statistik löschen</translation>
    </message>
    <message>
        <source>Export Statistics</source>
        <translation>Statistik exportieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>%1
Game %2, %3</source>
        <comment>date, game number, player</comment>
        <translation>%1
Spiel %2, %3</translation>
    </message>
    <message>
        <source>%1 is waiting for its first game.</source>
        <translation>%1 wartet auf sein erstes Spiel.</translation>
    </message>
    <message>
        <source>%1 won in a row by %2: %3 now, %4 at best</source>
        <comment>a game, a player, two numbers</comment>
        <translation>%1, von %2 in Folge gewonnen: derzeit %3, höchstens %4</translation>
    </message>
    <message>
        <source>No game was finished in this time.</source>
        <translation>In dieser Zeit wurde kein Spiel beendet.</translation>
    </message>
    <message>
        <source>%1 hasn&apos;t finished a game yet.</source>
        <translation>%1 hat noch kein Spiel beendet.</translation>
    </message>
</context>
<context>
    <name>varnello::GameTree</name>
    <message>
        <source>Games</source>
        <translation>Spiele</translation>
    </message>
</context>
<context>
    <name>varnello::HelpWindow</name>
    <message>
        <source>%1 - %2</source>
        <comment>a help page, the program</comment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>Find in page</source>
        <translation>Auf der Seite suchen</translation>
    </message>
    <message>
        <source>Not on this page</source>
        <translation>Nicht auf dieser Seite</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
</context>
<context>
    <name>varnello::HighScoreDialog</name>
    <message>
        <source>Top games</source>
        <translation>Beste Spiele</translation>
    </message>
    <message>
        <source>Best of the game</source>
        <translation>Die besten bei diesem Spiel</translation>
    </message>
    <message>
        <source>Best of the player</source>
        <translation>Die besten dieses Spielers</translation>
    </message>
    <message>
        <source>Best won games</source>
        <translation>Die besten gewonnenen Spiele</translation>
    </message>
    <message>
        <source>High Score</source>
        <translation>Bestenliste</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Spiel</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Spieler</translation>
    </message>
    <message>
        <source>Ranked by</source>
        <translation>Geordnet nach</translation>
    </message>
    <message>
        <source>Top Games</source>
        <translation>Beste Spiele</translation>
    </message>
    <message>
        <source>Game-wise</source>
        <translation>Nach Spiel</translation>
    </message>
    <message>
        <source>Player-wise</source>
        <translation>Nach Spieler</translation>
    </message>
    <message>
        <source>Finished Games</source>
        <translation>Gewonnene Spiele</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>No game has made it onto this list yet.</source>
        <translation>Noch hat es kein Spiel auf diese Liste geschafft.</translation>
    </message>
</context>
<context>
    <name>varnello::HistoryDialog</name>
    <message>
        <source>Game History</source>
        <translation>Spielverlauf</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Nach</translation>
    </message>
    <message>
        <source>Cards</source>
        <translation>Karten</translation>
    </message>
    <message>
        <source>Moves</source>
        <translation>Züge</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
</context>
<context>
    <name>varnello::LogDialog</name>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Log Statistics</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>All Players</source>
        <translation>Alle Spieler</translation>
    </message>
    <message>
        <source>All Games</source>
        <translation>Alle Spiele</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Spieler</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Spiel</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeitraum</translation>
    </message>
    <message>
        <source>The first %1 of the selected rows were copied; &quot;Export Statistics&quot; in Game Statistics writes all of them.</source>
        <translation>Die ersten %1 der ausgewählten Zeilen wurden kopiert; „Statistik exportieren“ in der Spielstatistik schreibt alle.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Nothing played yet.</source>
        <translation>Noch nichts gespielt.</translation>
    </message>
    <message>
        <source>No game passes these filters.</source>
        <translation>Kein Spiel passt zu diesen Filtern.</translation>
    </message>
    <message>
        <source>No games</source>
        <translation>Keine Spiele</translation>
    </message>
    <message>
        <source>1 game, %1 won (%2%)   Time: %3   Best score: %4</source>
        <translation>1 Spiel, %1 gewonnen (%2%)   Zeit: %3   Höchste Punktzahl: %4</translation>
    </message>
    <message numerus="yes">
        <source>%Ln games, %1 won (%2%)   Time: %3   Best score: %4</source>
        <translation>
            <numerusform>%Ln Spiel, %1 gewonnen (%2%)   Zeit: %3   Höchste Punktzahl: %4</numerusform>
            <numerusform>%Ln Spiele, %1 gewonnen (%2%)   Zeit: %3   Höchste Punktzahl: %4</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>varnello::NumberDialog</name>
    <message>
        <source>Select a Game Number</source>
        <translation>Spielnummer wählen</translation>
    </message>
    <message>
        <source>&amp;Game</source>
        <translation>&amp;Spiel</translation>
    </message>
    <message>
        <source>P&amp;layer</source>
        <translation>S&amp;pieler</translation>
    </message>
    <message>
        <source>Enter a Game Number between</source>
        <translation>Spielnummer eingeben zwischen</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>varnello::OrganizeFavoritesDialog</name>
    <message>
        <source>Game Number</source>
        <translation>Spielnummer</translation>
    </message>
    <message>
        <source>Clear Favorites</source>
        <translation>Favoriten löschen</translation>
    </message>
    <message>
        <source>Organize Favorites</source>
        <translation>Favoriten verwalten</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Spiel</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>varnello::PlayFavoriteDialog</name>
    <message>
        <source>Play</source>
        <translation>Spielen</translation>
    </message>
    <message>
        <source>Play from Favorites</source>
        <translation>Aus Favoriten spielen</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Spiel</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>varnello::PlayersDialog</name>
    <message>
        <source>Players</source>
        <translation>Spieler</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Add Player</source>
        <translation>Spieler hinzufügen</translation>
    </message>
    <message>
        <source>Edit Player</source>
        <translation>Spieler bearbeiten</translation>
    </message>
</context>
<context>
    <name>varnello::ReportView</name>
    <message>
        <source>&amp;Play This Deal...</source>
        <translation>Diese Partie &amp;spielen …</translation>
    </message>
    <message>
        <source>&amp;Copy Number</source>
        <translation>&amp;Nummer kopieren</translation>
    </message>
</context>
<context>
    <name>varnello::SelectDialog</name>
    <message>
        <source>Play</source>
        <translation>Spielen</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Regeln</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Spieler</translation>
    </message>
    <message>
        <source>Preview of the game</source>
        <translation>Vorschau des Spiels</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>varnello::SessionDialog</name>
    <message>
        <source>Games of this session</source>
        <translation>Spiele dieser Sitzung</translation>
    </message>
    <message>
        <source>Games of this session by figures</source>
        <translation>Spiele dieser Sitzung in Zahlen</translation>
    </message>
    <message>
        <source>Games won and lost</source>
        <translation>Gewonnene und verlorene Spiele</translation>
    </message>
    <message>
        <source>Score, moves and time game by game</source>
        <translation>Punkte, Züge und Zeit Spiel für Spiel</translation>
    </message>
    <message>
        <source>Session Statistics</source>
        <translation>Sitzungsstatistik</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Session Details</source>
        <translation>Einzelheiten</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>No game was played in this session yet.</source>
        <translation>In dieser Sitzung wurde noch nicht gespielt.</translation>
    </message>
    <message>
        <source>This Session</source>
        <translation>Diese Sitzung</translation>
    </message>
    <message>
        <source>This Game</source>
        <translation>Dieses Spiel</translation>
    </message>
    <message>
        <source>Refresh Chart</source>
        <translation>Diagramm auffrischen</translation>
    </message>
</context>
<context>
    <name>varnello::Splash</name>
    <message>
        <source>Version : %1</source>
        <translation>Version: %1</translation>
    </message>
</context>
<context>
    <name>varnello::TableView</name>
    <message>
        <source>Card table</source>
        <translation>Kartentisch</translation>
    </message>
    <message>
        <source>Ctrl with + and - makes the cards larger and smaller.</source>
        <translation>Strg mit + und - macht die Karten größer und kleiner.</translation>
    </message>
</context>
<context>
    <name>varnello::TableVoice</name>
    <message>
        <source>The game is over.</source>
        <translation>Das Spiel ist zu Ende.</translation>
    </message>
    <message>
        <source>%1, game number %2, is dealt.</source>
        <translation>%1, Spielnummer %2, ist gegeben.</translation>
    </message>
    <message>
        <source>The game is won.</source>
        <translation>Das Spiel ist gewonnen.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln cards were taken back.</source>
        <translation>
            <numerusform>%Ln Karte wurde zurückgenommen.</numerusform>
            <numerusform>%Ln Karten wurden zurückgenommen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln cards moved.</source>
        <translation>
            <numerusform>%Ln Karte wurde bewegt.</numerusform>
            <numerusform>%Ln Karten wurden bewegt.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was taken back to %2.</source>
        <translation>%1 wurde zurückgenommen: %2.</translation>
    </message>
    <message>
        <source>%1 went up to %2.</source>
        <translation>%1 ging auf %2.</translation>
    </message>
    <message>
        <source>%1 moved to %2.</source>
        <translation>%1 kam auf %2.</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more moved to %2.</source>
        <comment>a card, those on it, a pile</comment>
        <translation>
            <numerusform>%1 und %Ln weitere kamen auf %2.</numerusform>
            <numerusform>%1 und %Ln weitere kamen auf %2.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln cards went up to the foundations.</source>
        <translation>
            <numerusform>%Ln Karte ging auf die Grundstapel.</numerusform>
            <numerusform>%Ln Karten gingen auf die Grundstapel.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is uncovered.</source>
        <translation>%1 ist aufgedeckt.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln cards are uncovered.</source>
        <translation>
            <numerusform>%Ln Karte ist aufgedeckt.</numerusform>
            <numerusform>%Ln Karten sind aufgedeckt.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>varnello::Toolbar</name>
    <message>
        <source>New Game</source>
        <translation>Neues Spiel</translation>
    </message>
    <message>
        <source>Select Game</source>
        <translation>Spiel auswählen</translation>
    </message>
    <message>
        <source>Restart Game</source>
        <translation>Spiel neu starten</translation>
    </message>
    <message>
        <source>Autoplay</source>
        <translation>Automatisch ablegen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Replay Back</source>
        <translation>Wiedergabe zurück</translation>
    </message>
    <message>
        <source>Replay Stop</source>
        <translation>Wiedergabe anhalten</translation>
    </message>
    <message>
        <source>Replay Forward</source>
        <translation>Wiedergabe vorwärts</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Werkzeugleiste</translation>
    </message>
</context>
</TS>
