<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>CAboutDlg</name>
    <message>
        <source>About Trelio Frame</source>
        <translation>À propos de Trelio Frame</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>© Tolvan. All rights reserved.</source>
        <translation>© Tolvan. Tous droits réservés.</translation>
    </message>
    <message>
        <source>Perspective, horizon and lens corrections for your photos.</source>
        <translation>Corrections de la perspective, de l’horizon et des défauts d’objectif pour vos photos.</translation>
    </message>
    <message>
        <source>Made with:</source>
        <translation>Réalisé avec :</translation>
    </message>
    <message>
        <source>Licences on the web</source>
        <translation>Licences sur le Web</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>CAboutOstraDlg</name>
    <message>
        <source>About the Ostra Collection</source>
        <translation>À propos d’Ostra Collection</translation>
    </message>
    <message>
        <source>with Trelio Frame %1</source>
        <translation>avec Trelio Frame %1</translation>
    </message>
    <message>
        <source>© Tolvan. All rights reserved.</source>
        <translation>© Tolvan. Tous droits réservés.</translation>
    </message>
    <message>
        <source>A family of plug-ins for photographers. Its members share their language and their preferences, so that what you set in one holds in all.</source>
        <translation>Une famille de plug-ins pour les photographes. Ses membres partagent leur langue et leurs préférences : ce que vous réglez dans l’un s’applique à tous.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
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
    <name>CMessageBox</name>
    <message>
        <source>Dialog</source>
        <translation>Boîte de dialogue</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Don&apos;t save</source>
        <translation>Ne pas enregistrer</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Faire pivoter</translation>
    </message>
    <message>
        <source>Don&apos;t quit</source>
        <translation>Ne pas quitter</translation>
    </message>
    <message>
        <source>Quit without saving</source>
        <translation>Quitter sans enregistrer</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Question</translation>
    </message>
</context>
<context>
    <name>CProgressBox</name>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Arrêt en cours…</translation>
    </message>
    <message>
        <source>A few seconds left</source>
        <translation>Encore quelques secondes</translation>
    </message>
    <message numerus="yes">
        <source>About %n seconds left</source>
        <translation>
            <numerusform>Encore environ %n seconde</numerusform>
            <numerusform>Encore environ %n secondes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n minutes left</source>
        <translation>
            <numerusform>Encore environ %n minute</numerusform>
            <numerusform>Encore environ %n minutes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n hours left</source>
        <translation>
            <numerusform>Encore environ %n heure</numerusform>
            <numerusform>Encore environ %n heures</numerusform>
        </translation>
    </message>
    <message>
        <source>The work could not be completed.</source>
        <translation>L’opération n’a pas pu être terminée.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
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
        <translation>Impossible de démarrer Trelio Frame : l’espace libre sur le disque %1 est insuffisant.
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
<context>
    <name>TOLVAN_NAMESPACE::CArchiveJob</name>
    <message>
        <source>not found</source>
        <translation>introuvable</translation>
    </message>
    <message>
        <source>not a file</source>
        <translation>n’est pas un fichier</translation>
    </message>
    <message>
        <source>not a zip archive</source>
        <translation>n’est pas une archive ZIP</translation>
    </message>
    <message>
        <source>unsupported compression method</source>
        <translation>méthode de compression non prise en charge</translation>
    </message>
    <message>
        <source>protected by a password</source>
        <translation>protégé par un mot de passe</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>endommagé</translation>
    </message>
    <message>
        <source>name not allowed</source>
        <translation>nom non autorisé</translation>
    </message>
    <message>
        <source>leads out of the folder</source>
        <translation>mène hors du dossier</translation>
    </message>
    <message>
        <source>shares data with another entry</source>
        <translation>partage des données avec un autre élément</translation>
    </message>
    <message>
        <source>too large</source>
        <translation>trop volumineux</translation>
    </message>
    <message>
        <source>not enough disk space</source>
        <translation>espace disque insuffisant</translation>
    </message>
    <message>
        <source>access denied</source>
        <translation>accès refusé</translation>
    </message>
    <message>
        <source>name used by a folder or a link</source>
        <translation>nom utilisé par un dossier ou un lien</translation>
    </message>
    <message>
        <source>changed while it was read</source>
        <translation>modifié pendant la lecture</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>lecture impossible</translation>
    </message>
    <message>
        <source>cannot be written</source>
        <translation>écriture impossible</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>interrompu</translation>
    </message>
    <message>
        <source>Stopped after %1 of %2 entries (%3).</source>
        <translation>Interrompu après %1 éléments sur %2 (%3).</translation>
    </message>
    <message>
        <source>Checked %1 of %2 entries (%3).</source>
        <translation>%1 éléments vérifiés sur %2 (%3).</translation>
    </message>
    <message>
        <source>Packed %1 of %2 entries (%3).</source>
        <translation>%1 éléments compressés sur %2 (%3).</translation>
    </message>
    <message>
        <source>Unpacked %1 of %2 entries (%3).</source>
        <translation>%1 éléments décompressés sur %2 (%3).</translation>
    </message>
    <message>
        <source>Checked %1 of %2 entries (%3). %4: %5.</source>
        <translation>%1 éléments vérifiés sur %2 (%3). %4 : %5.</translation>
    </message>
    <message>
        <source>Packed %1 of %2 entries (%3). %4: %5.</source>
        <translation>%1 éléments compressés sur %2 (%3). %4 : %5.</translation>
    </message>
    <message>
        <source>Unpacked %1 of %2 entries (%3). %4: %5.</source>
        <translation>%1 éléments décompressés sur %2 (%3). %4 : %5.</translation>
    </message>
</context>
</TS>
