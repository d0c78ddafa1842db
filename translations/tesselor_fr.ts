<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>Tesselor</name>
    <message>
        <source>&quot;%1&quot; cannot be opened.</source>
        <translation>Impossible d’ouvrir «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs more memory than is available.</source>
        <translation>Mémoire insuffisante pour «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a picture the game can read.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une image que le jeu peut lire.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 x %3 pixels; a skin has 3 x 13 cells, so it has at least 3 x 13 pixels.</source>
        <translation>«&#xa0;%1&#xa0;» fait %2&#xa0;×&#xa0;%3 pixels&#xa0;; un thème compte 3&#xa0;×&#xa0;13 cases, il lui faut donc au moins 3&#xa0;×&#xa0;13 pixels.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2 x %3 pixels; a skin has at most 16 million pixels.</source>
        <translation>«&#xa0;%1&#xa0;» fait %2&#xa0;×&#xa0;%3 pixels&#xa0;; un thème ne peut pas dépasser 16&#xa0;millions de pixels.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not found.</source>
        <translation>«&#xa0;%1&#xa0;» est introuvable.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than 64 megabytes, the most a skin may have.</source>
        <translation>«&#xa0;%1&#xa0;» dépasse 64&#xa0;Mo, la taille maximale d’un thème.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes too long to read.</source>
        <translation>La lecture de «&#xa0;%1&#xa0;» prend trop de temps.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged or incomplete.</source>
        <translation>«&#xa0;%1&#xa0;» est endommagé ou incomplet.</translation>
    </message>
    <message>
        <source>levels and skins</source>
        <translation>Niveaux et thèmes</translation>
    </message>
    <message>
        <source>help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>high scores</source>
        <translation>Meilleurs scores</translation>
    </message>
    <message>
        <source>practice</source>
        <translation>Initiation</translation>
    </message>
    <message>
        <source>junior</source>
        <translation>Débutant</translation>
    </message>
    <message>
        <source>senior</source>
        <translation>Confirmé</translation>
    </message>
    <message>
        <source>expert</source>
        <translation>Expert</translation>
    </message>
    <message>
        <source>master</source>
        <translation>Maître</translation>
    </message>
    <message>
        <source>Skin %1</source>
        <translation>Thème %1</translation>
    </message>
    <message>
        <source> select level</source>
        <translation>Niveau</translation>
    </message>
    <message>
        <source>select skin</source>
        <translation>Thème</translation>
    </message>
    <message>
        <source>for more skins</source>
        <translation>Plus de thèmes sur</translation>
    </message>
    <message>
        <source>Opens the rules of the game</source>
        <translation>Ouvre les règles du jeu</translation>
    </message>
    <message>
        <source>Plays a game by itself</source>
        <translation>L’ordinateur joue une partie</translation>
    </message>
    <message>
        <source>Eraser: lock it over a card to remove that card</source>
        <translation>Gomme&#xa0;: posez-la sur une carte pour l’effacer</translation>
    </message>
    <message>
        <source>Move the card: arrow keys or mouse</source>
        <translation>Déplacer la carte&#xa0;: flèches ou souris</translation>
    </message>
    <message>
        <source>Lock the card: space bar or left mouse button</source>
        <translation>Poser la carte&#xa0;: barre d’espace ou bouton gauche de la souris</translation>
    </message>
    <message>
        <source>Pause and resume: P or right mouse button</source>
        <translation>Pause et reprise&#xa0;: P ou bouton droit de la souris</translation>
    </message>
    <message>
        <source>move card</source>
        <translation>Déplacer</translation>
    </message>
    <message>
        <source>lock card</source>
        <translation>Poser</translation>
    </message>
    <message>
        <source>pause/resume</source>
        <translation>Pause/reprise</translation>
    </message>
    <message>
        <source>arrow keys</source>
        <translation>Flèches</translation>
    </message>
    <message>
        <source>space</source>
        <translation>Espace</translation>
    </message>
    <message>
        <source>active card      </source>
        <translation>Carte active</translation>
    </message>
    <message>
        <source>erasor</source>
        <translation>Gomme</translation>
    </message>
    <message>
        <source>more</source>
        <translation>Plus</translation>
    </message>
    <message>
        <source>demo</source>
        <translation>Démo</translation>
    </message>
    <message>
        <source>Start a new game</source>
        <translation>Commencer une nouvelle partie</translation>
    </message>
    <message>
        <source>Choose a level and a skin</source>
        <translation>Choisir un niveau et un thème</translation>
    </message>
    <message>
        <source>How to play</source>
        <translation>Comment jouer</translation>
    </message>
    <message>
        <source>High Score </source>
        <translation>Meilleurs scores</translation>
    </message>
    <message>
        <source>Read the rules</source>
        <translation>Lire les règles</translation>
    </message>
    <message>
        <source>play</source>
        <translation>Jouer</translation>
    </message>
    <message>
        <source>menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>score</source>
        <comment>button of the high-score table</comment>
        <translation>Meilleurs scores</translation>
    </message>
    <message>
        <source>Starts a new game</source>
        <translation>Commence une nouvelle partie</translation>
    </message>
    <message>
        <source>How the game is played</source>
        <translation>Explique comment jouer</translation>
    </message>
    <message>
        <source>The four best games</source>
        <translation>Les quatre meilleures parties</translation>
    </message>
    <message>
        <source>Enter Your Name</source>
        <translation>Entrez votre nom</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Place %1: empty</source>
        <translation>Place %1&#xa0;: libre</translation>
    </message>
    <message>
        <source>Place %1: %2, score %3, %4</source>
        <comment>place, player, score, date</comment>
        <translation>Place %1&#xa0;: %2, score %3, %4</translation>
    </message>
    <message>
        <source>no name</source>
        <translation>sans nom</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>score</source>
        <translation>Score</translation>
    </message>
    <message>
        <source>submit your high score</source>
        <translation>Publiez votre meilleur score sur</translation>
    </message>
    <message>
        <source>Exit </source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Quitte le jeu</translation>
    </message>
    <message>
        <source>minimise</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Score %1</source>
        <translation>Score&#xa0;: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n card(s) left</source>
        <translation>
            <numerusform>%n carte à poser</numerusform>
            <numerusform>%n cartes à poser</numerusform>
        </translation>
    </message>
    <message>
        <source>Time used</source>
        <translation>Temps utilisé</translation>
    </message>
    <message>
        <source>Come and compete online at </source>
        <translation>Affrontez les autres joueurs sur</translation>
    </message>
    <message>
        <source>CARDS LEFT</source>
        <translation>CARTES À POSER</translation>
    </message>
    <message>
        <source>SCORE</source>
        <translation>SCORE</translation>
    </message>
    <message>
        <source>next card</source>
        <translation>Suivante</translation>
    </message>
    <message>
        <source>The recording could not be written to %1.</source>
        <translation>Impossible d’écrire l’enregistrement dans %1.</translation>
    </message>
    <message>
        <source>Line up cards by : color, shape, quantity or series <byte value="xd"/>
1,2,3,4. For high score make multiple combinations</source>
        <translation>Alignez 4 cartes de même forme, couleur ou nombre, ou suite 1–4. Plus d’éléments communs, plus de points.</translation>
    </message>
    <message>
        <source>The rules of the game</source>
        <translation>Les règles du jeu</translation>
    </message>
    <message>
        <source>Time is up: locked in row %1, column %2.</source>
        <translation>Temps écoulé&#xa0;: posée en rangée %1, colonne %2.</translation>
    </message>
    <message>
        <source>Time is up.</source>
        <translation>Temps écoulé.</translation>
    </message>
    <message numerus="yes">
        <source>Line scored: %Ln point(s).</source>
        <translation>
            <numerusform>Ligne complète&#xa0;: %Ln point.</numerusform>
            <numerusform>Ligne complète&#xa0;: %Ln points.</numerusform>
        </translation>
    </message>
    <message>
        <source>Game over. %1.</source>
        <translation>Partie terminée. %1.</translation>
    </message>
    <message>
        <source>Are You Sure You want To Replace This Skin !</source>
        <translation>Voulez-vous vraiment remplacer ce thème&#xa0;?</translation>
    </message>
    <message>
        <source>No skins were found. A skin is a picture of 3 x 13 cards; put one in %1.</source>
        <translation>Aucun thème trouvé. Un thème est une image de 3&#xa0;×&#xa0;13 cartes&#xa0;; placez-en une dans %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written into %2.</source>
        <comment>file, folder</comment>
        <translation>Impossible de copier «&#xa0;%1&#xa0;» dans %2.</translation>
    </message>
    <message>
        <source>Paused.</source>
        <translation>Pause.</translation>
    </message>
    <message>
        <source>Game resumed.</source>
        <translation>Reprise.</translation>
    </message>
    <message>
        <source>A quarter of the time bar is left.</source>
        <translation>Plus qu’un quart du temps.</translation>
    </message>
    <message>
        <source>covered</source>
        <comment>cell of the board</comment>
        <translation>couverte</translation>
    </message>
    <message>
        <source>empty</source>
        <comment>cell of the board</comment>
        <translation>vide</translation>
    </message>
    <message>
        <source>%1, active card</source>
        <comment>a card</comment>
        <translation>%1, carte active</translation>
    </message>
    <message>
        <source>%1, active card, over %2</source>
        <comment>two cards</comment>
        <translation>%1, carte active, sur %2</translation>
    </message>
    <message>
        <source>over %2, active card %1</source>
        <comment>two cards</comment>
        <translation>sur %2, carte active %1</translation>
    </message>
    <message>
        <source>eraser</source>
        <translation>gomme</translation>
    </message>
    <message>
        <source>shape %1, colour %2, quantity %3</source>
        <translation>forme %1, couleur %2, quantité %3</translation>
    </message>
    <message>
        <source>Row %1, column %2: %3</source>
        <translation>Rangée %1, colonne %2&#xa0;: %3</translation>
    </message>
    <message>
        <source>Next card: none</source>
        <translation>Carte suivante&#xa0;: aucune</translation>
    </message>
    <message>
        <source>Next card: %1</source>
        <translation>Carte suivante&#xa0;: %1</translation>
    </message>
    <message>
        <source>Board, level %1, paused</source>
        <translation>Plateau, niveau %1, en pause</translation>
    </message>
    <message>
        <source>Board, level %1</source>
        <translation>Plateau, niveau %1</translation>
    </message>
    <message>
        <source>empty, drop a picture here for a new skin</source>
        <comment>slot of the menu</comment>
        <translation>Vide, déposez ici une image pour ajouter un thème</translation>
    </message>
    <message>
        <source>Important notice!</source>
        <translation>Avis important&#xa0;!</translation>
    </message>
    <message>
        <source>This application works with small fonts only</source>
        <translation>Ce jeu ne fonctionne qu’avec de petites polices</translation>
    </message>
    <message>
        <source>Please change your system to &quot;Small Fonts&quot;</source>
        <translation>Réglez votre système sur «&#xa0;Petites polices&#xa0;»</translation>
    </message>
    <message>
        <source>in the Windows Setting System</source>
        <translation>dans les paramètres d’affichage de Windows</translation>
    </message>
    <message>
        <source>Usage: tesselor [options]
A single-player card puzzle.

  -h, --help     show this help and exit
  -v, --version  show the version and exit
      --scale N  enlarge the window N times, from 1 to 4, such as 1.5

Qt options such as -platform are accepted as well. Set TESSELOR_HOME to use
another folder for skins, rules text and sound files.
</source>
        <translation>Utilisation&#xa0;: tesselor [options]
Un casse-tête de cartes pour un joueur.

  -h, --help     affiche cette aide et quitte
  -v, --version  affiche la version et quitte
      --scale N  agrandit la fenêtre N fois, de 1 à 4, par exemple 1.5

Les options de Qt, comme -platform, sont aussi acceptées. TESSELOR_HOME désigne
un autre dossier pour les thèmes, les règles et les sons.
</translation>
    </message>
    <message>
        <source>tesselor: --scale takes a number from 1 to 4, such as 1.5, not &quot;%1&quot;.</source>
        <translation>tesselor: --scale attend un nombre de 1 à 4, par exemple 1.5, et non «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>tesselor cannot show its window: no display is available.</source>
        <translation>tesselor ne peut pas afficher sa fenêtre&#xa0;: aucun affichage n’est disponible.</translation>
    </message>
    <message>
        <source>tesselor cannot show its window: Qt&apos;s plugin for Wayland is missing. It is in the package %1.</source>
        <extracomment>%1: a name such as qt6-wayland</extracomment>
        <translation>tesselor ne peut pas afficher sa fenêtre&#xa0;: le greffon Qt pour Wayland est absent. Il se trouve dans le paquet %1.</translation>
    </message>
</context>
</TS>
