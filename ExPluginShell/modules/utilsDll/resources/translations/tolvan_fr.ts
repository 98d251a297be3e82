<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>CLanguageManager</name>
    <message>
        <source>language name</source>
        <translation>Français</translation>
    </message>
    <message>
        <source>ostra language number</source>
        <translation>5</translation>
    </message>
    <message>
        <source>language number</source>
        <translation>1036</translation>
    </message>
</context>
<context>
    <name>CLanguageTest</name>
    <message>
        <source>language name</source>
        <translation>Français</translation>
    </message>
    <message>
        <source>ostra language number</source>
        <translation>5</translation>
    </message>
    <message>
        <source>language number</source>
        <translation>1036</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Windows small space message on drive %1</source>
        <translation>Impossible de démarrer Trelio Frame : l’espace libre sur le disque %1 est insuffisant.
Veuillez supprimer les fichiers inutiles de ce disque, puis réessayer.</translation>
    </message>
    <message>
        <source>Out of memory. Program will be closed.</source>
        <translation>Trelio Frame doit se fermer, car la mémoire disponible est insuffisante.
Veuillez fermer d’autres programmes, puis relancer Trelio Frame.</translation>
    </message>
    <message>
        <source>%1 has run out of memory. The application may now become unstable. Please close %2 and Photoshop, quit all other programs running, and try again.</source>
        <translation>%1 ne dispose plus d’assez de mémoire. L’application risque de devenir instable. Veuillez fermer %2 et Photoshop, quitter tous les autres programmes en cours d’exécution, puis réessayer.</translation>
    </message>
    <message>
        <source>Unhandled exception. Program will be closed.</source>
        <translation>Trelio Frame doit se fermer en raison d’une exception non gérée.</translation>
    </message>
    <message>
        <source>B</source>
        <translation>o</translation>
    </message>
    <message>
        <source>KB</source>
        <translation>Ko</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>Mo</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>in</source>
        <translation>in</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
</context>
</TS>
