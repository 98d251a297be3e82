<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AsyncPage</name>
    <message>
        <source>Move the slider: its many requests become one call.</source>
        <translation>Déplacez le curseur : ses nombreuses demandes deviennent un seul appel.</translation>
    </message>
    <message>
        <source>Not running.</source>
        <translation>À l’arrêt.</translation>
    </message>
    <message>
        <source>While the page waits, clicks are held back and delivered after the wait.</source>
        <translation>Pendant l’attente, les clics sont retenus, puis transmis ensuite.</translation>
    </message>
    <message>
        <source>Clicks: 0</source>
        <translation>Clics : 0</translation>
    </message>
    <message>
        <source>%1 items on a pool of two threads.</source>
        <translation>%1 tâches sur deux threads.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Delayed calls</source>
        <translation>Appels différés</translation>
    </message>
    <message>
        <source>Periodic call</source>
        <translation>Appel périodique</translation>
    </message>
    <message>
        <source>Work items</source>
        <translation>Tâches</translation>
    </message>
    <message>
        <source>Waits</source>
        <translation>Attentes</translation>
    </message>
    <message>
        <source>Wait, input excluded</source>
        <translation>Attendre, saisie exclue</translation>
    </message>
    <message>
        <source>Wait for a worker</source>
        <translation>Attendre une tâche</translation>
    </message>
    <message>
        <source>Click me meanwhile</source>
        <translation>Cliquez-moi entre-temps</translation>
    </message>
    <message>
        <source>Requests: %1, calls: %2</source>
        <translation>Demandes : %1, appels : %2</translation>
    </message>
    <message>
        <source>Every %1 ms.</source>
        <translation>Toutes les %1 ms.</translation>
    </message>
    <message>
        <source>Stopped. Calls: %1</source>
        <translation>Arrêté. Appels : %1</translation>
    </message>
    <message>
        <source>Calls: %1</source>
        <translation>Appels : %1</translation>
    </message>
    <message>
        <source>%1 of %2 items finished, %3 of them stopped.</source>
        <translation>%1 tâches sur %2 terminées, dont %3 arrêtées.</translation>
    </message>
    <message>
        <source>Waiting for %1 ms. Clicks are held back.</source>
        <translation>Attente de %1 ms. Les clics sont retenus.</translation>
    </message>
    <message>
        <source>The wait is over. Clicks held back and delivered now: %1</source>
        <translation>L’attente est terminée. Clics retenus et transmis maintenant : %1</translation>
    </message>
    <message>
        <source>Waiting for a worker. Clicks are delivered at once.</source>
        <translation>Attente d’une tâche de fond. Les clics sont transmis aussitôt.</translation>
    </message>
    <message>
        <source>The worker has finished.</source>
        <translation>La tâche est terminée.</translation>
    </message>
    <message>
        <source>Clicks: %1</source>
        <translation>Clics : %1</translation>
    </message>
</context>
<context>
    <name>DrawingPage</name>
    <message>
        <source>Drag across the picture to draw a line</source>
        <translation>Glissez sur l’image pour tracer une ligne</translation>
    </message>
    <message>
        <source>Picture with guide lines</source>
        <translation>Image avec lignes de guidage</translation>
    </message>
    <message>
        <source>Insert adds a line and Delete removes it, Page Up and Page Down choose one, the arrow keys move its end, with Shift its start.</source>
        <translation>Inser ajoute une ligne et Suppr la retire, Page précédente et Page suivante en choisissent une, les flèches déplacent sa fin et, avec Maj, son début.</translation>
    </message>
    <message>
        <source>Stretch the pattern</source>
        <translation>Étirer le motif</translation>
    </message>
    <message>
        <source>Remove all lines</source>
        <translation>Supprimer toutes les lignes</translation>
    </message>
    <message>
        <source>Lines: %1</source>
        <translation>Lignes : %1</translation>
    </message>
</context>
<context>
    <name>FilesPage</name>
    <message>
        <source>File name</source>
        <translation>Nom de fichier</translation>
    </message>
    <message>
        <source>As a name and as a path</source>
        <translation>Comme nom et comme chemin</translation>
    </message>
    <message>
        <source>Two paths</source>
        <translation>Deux chemins</translation>
    </message>
    <message>
        <source>As a whole and without suffix</source>
        <translation>En entier et sans extension</translation>
    </message>
    <message>
        <source>Sizes as text</source>
        <translation>Tailles en texte</translation>
    </message>
    <message>
        <source>A folder as an archive</source>
        <translation>Un dossier en archive</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>Choisir…</translation>
    </message>
    <message>
        <source>Pack</source>
        <translation>Compresser</translation>
    </message>
    <message>
        <source>Unpack and compare</source>
        <translation>Extraire et comparer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>The archive</source>
        <translation>L’archive</translation>
    </message>
    <message>
        <source>Show in the file browser</source>
        <translation>Afficher dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>Send to the recycle bin</source>
        <translation>Mettre à la corbeille</translation>
    </message>
    <message>
        <source>may be used</source>
        <translation>utilisable</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>refusé</translation>
    </message>
    <message>
        <source>equal</source>
        <translation>égaux</translation>
    </message>
    <message>
        <source>different</source>
        <translation>différents</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Choisir un dossier</translation>
    </message>
    <message>
        <source>Not done: cancelled, or a file can&apos;t be read or written.</source>
        <translation>Non effectué : annulé, ou un fichier ne peut être lu ou écrit.</translation>
    </message>
    <message>
        <source>Files packed: %1, archive: %2</source>
        <translation>Fichiers compressés : %1, archive : %2</translation>
    </message>
    <message>
        <source>Files unpacked: %1. Both folders are equal.</source>
        <translation>Fichiers extraits : %1. Les deux dossiers sont identiques.</translation>
    </message>
    <message>
        <source>The folders differ: %1</source>
        <translation>Les dossiers diffèrent : %1</translation>
    </message>
    <message>
        <source>The archive is in the recycle bin.</source>
        <translation>L’archive est dans la corbeille.</translation>
    </message>
    <message>
        <source>There is no archive.</source>
        <translation>Il n’y a pas d’archive.</translation>
    </message>
</context>
<context>
    <name>LanguagesPage</name>
    <message>
        <source>Use this language</source>
        <translation>Utiliser cette langue</translation>
    </message>
    <message>
        <source>What follows the language</source>
        <translation>Ce qui suit la langue</translation>
    </message>
    <message>
        <source>A date</source>
        <translation>Une date</translation>
    </message>
    <message>
        <source>A number</source>
        <translation>Un nombre</translation>
    </message>
    <message>
        <source>A button of Qt</source>
        <translation>Un bouton de Qt</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numéro</translation>
    </message>
    <message>
        <source>Catalogue</source>
        <translation>Fichier de traduction</translation>
    </message>
    <message>
        <source>Abbreviation</source>
        <translation>Abréviation</translation>
    </message>
</context>
<context>
    <name>LoggingPage</name>
    <message>
        <source>Log folder</source>
        <translation>Dossier des journaux</translation>
    </message>
    <message>
        <source>Minimum level</source>
        <translation>Niveau minimal</translation>
    </message>
    <message>
        <source>A line from the showcase</source>
        <translation>Une ligne de la démonstration</translation>
    </message>
    <message>
        <source>Debug</source>
        <translation>Débogage</translation>
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
        <source>The log of this process</source>
        <translation>Le journal de ce processus</translation>
    </message>
</context>
<context>
    <name>MessageBoxPage</name>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>Without a text each box brings one of its own.</source>
        <translation>Sans texte, chaque boîte affiche le sien.</translation>
    </message>
    <message>
        <source>Message boxes</source>
        <translation>Boîtes de message</translation>
    </message>
    <message>
        <source>About dialogs</source>
        <translation>Dialogues « À propos »</translation>
    </message>
    <message>
        <source>About the product</source>
        <translation>À propos du produit</translation>
    </message>
    <message>
        <source>About the product family</source>
        <translation>À propos de la famille</translation>
    </message>
    <message>
        <source>No answer yet</source>
        <translation>Pas encore de réponse</translation>
    </message>
    <message>
        <source>The last answer: %1</source>
        <translation>Dernière réponse : %1</translation>
    </message>
</context>
<context>
    <name>MessageBoxes</name>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>The picture was saved. You find it beside the original.</source>
        <translation>L’image a été enregistrée. Elle se trouve à côté de l’original.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>No lens profile was found for this picture. Distortion is not corrected.</source>
        <translation>Aucun profil d’objectif n’a été trouvé pour cette image. La distorsion n’est pas corrigée.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>The picture could not be saved, because the disk is full.</source>
        <translation>L’image n’a pas pu être enregistrée, car le disque est plein.</translation>
    </message>
    <message>
        <source>Yes or no</source>
        <translation>Oui ou non</translation>
    </message>
    <message>
        <source>A picture of this name is there already. Do you want to replace it?</source>
        <translation>Une image de ce nom existe déjà. Voulez-vous la remplacer ?</translation>
    </message>
    <message>
        <source>Save, discard, cancel</source>
        <translation>Enregistrer, abandonner, annuler</translation>
    </message>
    <message>
        <source>The picture was changed. Do you want to save your corrections?</source>
        <translation>L’image a été modifiée. Voulez-vous enregistrer vos corrections ?</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Faire pivoter</translation>
    </message>
    <message>
        <source>The camera was held upright. Do you want to rotate the picture?</source>
        <translation>L’appareil était tenu à la verticale. Voulez-vous faire pivoter l’image ?</translation>
    </message>
    <message>
        <source>Quit during work</source>
        <translation>Quitter en cours de travail</translation>
    </message>
    <message>
        <source>Pictures are still being corrected. What is not finished will be lost.</source>
        <translation>Des images sont en cours de correction. Ce qui n’est pas terminé sera perdu.</translation>
    </message>
</context>
<context>
    <name>NativeDialogsPage</name>
    <message>
        <source>Pictures (*.jpg *.png *.tif);;All files (*)</source>
        <translation>Images (*.jpg *.png *.tif);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Open a file</source>
        <translation>Ouvrir un fichier</translation>
    </message>
    <message>
        <source>Open files</source>
        <translation>Ouvrir des fichiers</translation>
    </message>
    <message>
        <source>Save a file</source>
        <translation>Enregistrer un fichier</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Choisir un dossier</translation>
    </message>
    <message>
        <source>Choose a folder by its pictures</source>
        <translation>Choisir un dossier d’images</translation>
    </message>
    <message>
        <source>What was chosen</source>
        <translation>Ce qui a été choisi</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>Logging</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>Every line goes through one bridge to the logger of the process.</source>
        <translation>Chaque ligne passe par un seul pont vers l’enregistreur du processus.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Preferences of this product, and the file that the product family shares.</source>
        <translation>Préférences de ce produit, et fichier partagé par la famille de produits.</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Emplacements de stockage</translation>
    </message>
    <message>
        <source>Every folder and file that the product knows.</source>
        <translation>Tous les dossiers et fichiers que le produit connaît.</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Langues</translation>
    </message>
    <message>
        <source>One choice for all products; texts, dates and numbers follow it at once.</source>
        <translation>Un seul choix pour tous les produits ; textes, dates et nombres suivent aussitôt.</translation>
    </message>
    <message>
        <source>Asynchronous</source>
        <translation>Asynchrone</translation>
    </message>
    <message>
        <source>Delayed calls, work items and waits: the window answers while something is under way.</source>
        <translation>Appels différés, tâches et attentes : la fenêtre répond pendant le travail.</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Names, sizes, archives, the recycle bin and the file browser.</source>
        <translation>Noms, tailles, archives, corbeille et gestionnaire de fichiers.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>Every standard widget under the product&apos;s style and style sheets.</source>
        <translation>Tous les éléments standard avec le style et les feuilles de style du produit.</translation>
    </message>
    <message>
        <source>Message boxes</source>
        <translation>Boîtes de message</translation>
    </message>
    <message>
        <source>The product&apos;s own boxes: 520 pixels wide, answered by mouse or keyboard.</source>
        <translation>Les boîtes propres au produit : 520 pixels de large, réponse à la souris ou au clavier.</translation>
    </message>
    <message>
        <source>Drawing tools</source>
        <translation>Outils de dessin</translation>
    </message>
    <message>
        <source>Guide lines and cursors of the correction tools, on a picture painted by code.</source>
        <translation>Lignes de guidage et curseurs des outils de correction, sur une image peinte par le programme.</translation>
    </message>
    <message>
        <source>Native dialogs</source>
        <translation>Dialogues du système</translation>
    </message>
    <message>
        <source>The dialogs of the system for files and folders.</source>
        <translation>Les dialogues du système pour les fichiers et les dossiers.</translation>
    </message>
    <message>
        <source>Web service</source>
        <translation>Service web</translation>
    </message>
    <message>
        <source>A SOAP client and the small service that it asks, both in this process.</source>
        <translation>Un client SOAP et le petit service qu’il interroge, tous deux dans ce processus.</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Values are kept in</source>
        <translation>Les valeurs sont dans</translation>
    </message>
    <message>
        <source>Minimum log level</source>
        <translation>Niveau minimal du journal</translation>
    </message>
    <message>
        <source>Write a log, from the next start on</source>
        <translation>Tenir un journal, dès le prochain démarrage</translation>
    </message>
    <message>
        <source>Crash reports may be sent</source>
        <translation>Envoi des rapports d’incident autorisé</translation>
    </message>
    <message>
        <source>Any value</source>
        <translation>Une valeur quelconque</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Clé</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Écrire</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>The file of the product family</source>
        <translation>Le fichier de la famille de produits</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Note to the other products</source>
        <translation>Note aux autres produits</translation>
    </message>
    <message>
        <source>Write into the file</source>
        <translation>Écrire dans le fichier</translation>
    </message>
    <message>
        <source>a temporary file, gone at the end</source>
        <translation>un fichier temporaire, effacé à la fin</translation>
    </message>
    <message>
        <source>the system&apos;s own store</source>
        <translation>le registre du système</translation>
    </message>
</context>
<context>
    <name>ShowcaseWindow</name>
    <message>
        <source>Trelio Frame – Showcase</source>
        <translation>Trelio Frame – Démonstration</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Langue</translation>
    </message>
</context>
<context>
    <name>StoragePage</name>
    <message>
        <source>Data of the product</source>
        <translation>Données du produit</translation>
    </message>
    <message>
        <source>Cache on disk</source>
        <translation>Cache sur disque</translation>
    </message>
    <message>
        <source>Cached token</source>
        <translation>Jeton mis en cache</translation>
    </message>
    <message>
        <source>Packs of the user</source>
        <translation>Paquets de l’utilisateur</translation>
    </message>
    <message>
        <source>Favourite presets</source>
        <translation>Préréglages favoris</translation>
    </message>
    <message>
        <source>Calibration data</source>
        <translation>Données de calibrage</translation>
    </message>
    <message>
        <source>Crash reports</source>
        <translation>Rapports d’incident</translation>
    </message>
    <message>
        <source>Crash reports under way</source>
        <translation>Rapports d’incident en cours</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Journaux</translation>
    </message>
    <message>
        <source>Sample pictures</source>
        <translation>Images d’exemple</translation>
    </message>
    <message>
        <source>Preferences of this computer</source>
        <translation>Préférences de cet ordinateur</translation>
    </message>
    <message>
        <source>Settings of the product family</source>
        <translation>Réglages de la famille de produits</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>not on this system</source>
        <translation>absent de ce système</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>oui</translation>
    </message>
    <message>
        <source>no</source>
        <translation>non</translation>
    </message>
    <message>
        <source>Purpose</source>
        <translation>Usage</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Chemin</translation>
    </message>
    <message>
        <source>Exists</source>
        <translation>Existe</translation>
    </message>
</context>
<context>
    <name>StylePage</name>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Hover</source>
        <translation>Survol</translation>
    </message>
    <message>
        <source>Pressed</source>
        <translation>Enfoncé</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Focus</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Push buttons</source>
        <translation>Boutons</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Coché</translation>
    </message>
    <message>
        <source>Flat</source>
        <translation>Plat</translation>
    </message>
    <message>
        <source>Other buttons</source>
        <translation>Autres boutons</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>A tool tip explains in one sentence.</source>
        <translation>Une info-bulle explique en une phrase.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Correct automatically</source>
        <translation>Corriger automatiquement</translation>
    </message>
    <message>
        <source>Check boxes and radio buttons</source>
        <translation>Cases à cocher et boutons radio</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>Partly</source>
        <translation>En partie</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Old harbour at dusk</source>
        <translation>Vieux port au crépuscule</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lieu</translation>
    </message>
    <message>
        <source>Name of the place</source>
        <translation>Nom du lieu</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Can be read only</source>
        <translation>En lecture seule</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Appareil photo</translation>
    </message>
    <message>
        <source>Cannot be changed</source>
        <translation>Non modifiable</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Raccourci</translation>
    </message>
    <message>
        <source>Choices and numbers</source>
        <translation>Choix et nombres</translation>
    </message>
    <message>
        <source>Perspective</source>
        <translation>Perspective</translation>
    </message>
    <message>
        <source>Ranges and progress</source>
        <translation>Plages et progression</translation>
    </message>
    <message>
        <source>Lenses</source>
        <translation>Objectifs</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation>Métadonnées</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Objectif</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>Focale</translation>
    </message>
    <message>
        <source>Aperture</source>
        <translation>Ouverture</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Forme</translation>
    </message>
    <message>
        <source>Keystoning</source>
        <translation>Correction trapézoïdale</translation>
    </message>
    <message>
        <source>Horizon</source>
        <translation>Horizon</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Recadrage</translation>
    </message>
    <message>
        <source>Distortion</source>
        <translation>Distorsion</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Grille</translation>
    </message>
    <message>
        <source>Guides</source>
        <translation>Repères</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Loupe</source>
        <translation>Loupe</translation>
    </message>
    <message>
        <source>Straight lines stay straight, and the tower stops leaning backwards.</source>
        <translation>Les lignes droites restent droites, et la tour cesse de pencher en arrière.</translation>
    </message>
    <message>
        <source>Tilt-shift</source>
        <translation>Bascule et décentrement</translation>
    </message>
    <message>
        <source>Blurred at both ends</source>
        <translation>Flou aux deux bords</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Fit to window</source>
        <translation>Adapter à la fenêtre</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Taille réelle</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Rotation à gauche</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Édition</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Prêt</translation>
    </message>
</context>
<context>
    <name>WebServicePage</name>
    <message>
        <source>Amount</source>
        <translation>Quantité</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unité</translation>
    </message>
    <message>
        <source>Ask the service</source>
        <translation>Interroger le service</translation>
    </message>
    <message>
        <source>Request</source>
        <translation>Requête</translation>
    </message>
    <message>
        <source>Answer</source>
        <translation>Réponse</translation>
    </message>
    <message>
        <source>Fault: %1</source>
        <translation>Erreur : %1</translation>
    </message>
    <message>
        <source>%1 cm</source>
        <translation>%1 cm</translation>
    </message>
</context>
</TS>
