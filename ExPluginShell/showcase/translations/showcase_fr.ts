<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AsyncPage</name>
    <message numerus="yes">
        <source>%n request(s)</source>
        <translation>
            <numerusform>%n demande</numerusform>
            <numerusform>%n demandes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n call(s)</source>
        <translation>
            <numerusform>%n appel</numerusform>
            <numerusform>%n appels</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The wait is over. %n click(s) held back and delivered afterwards.</source>
        <translation>
            <numerusform>L’attente est terminée. %n clic retenu puis transmis.</numerusform>
            <numerusform>L’attente est terminée. %n clics retenus puis transmis.</numerusform>
        </translation>
    </message>
    <message>
        <source>Delayed calls</source>
        <translation>Appels différés</translation>
    </message>
    <message>
        <source>Requests</source>
        <translation>Demandes</translation>
    </message>
    <message>
        <source>Move the slider: its many requests become one call.</source>
        <translation>Déplacez le curseur : ses nombreuses demandes deviennent un seul appel.</translation>
    </message>
    <message>
        <source>Periodic call</source>
        <translation>Appel périodique</translation>
    </message>
    <message>
        <source>Not running.</source>
        <translation>À l’arrêt.</translation>
    </message>
    <message>
        <source>Waits</source>
        <translation>Attentes</translation>
    </message>
    <message>
        <source>No clicks yet.</source>
        <translation>Aucun clic pour l’instant.</translation>
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
    <message numerus="yes">
        <source>%n click(s)</source>
        <translation>
            <numerusform>%n clic</numerusform>
            <numerusform>%n clics</numerusform>
        </translation>
    </message>
    <message>
        <source>While the page waits, clicks are held back and delivered after the wait.</source>
        <translation>Pendant l’attente, les clics sont retenus, puis transmis ensuite.</translation>
    </message>
    <message>
        <source>Every %1 ms.</source>
        <translation>Toutes les %1 ms.</translation>
    </message>
    <message numerus="yes">
        <source>Stopped after %n call(s).</source>
        <translation>
            <numerusform>Arrêté après %n appel.</numerusform>
            <numerusform>Arrêté après %n appels.</numerusform>
        </translation>
    </message>
    <message>
        <source>Waiting for %1 ms. Clicks are held back.</source>
        <translation>Attente de %1 ms. Les clics sont retenus.</translation>
    </message>
    <message>
        <source>Waiting for a worker. Clicks are delivered at once.</source>
        <translation>Attente d’une tâche de fond. Les clics sont transmis aussitôt.</translation>
    </message>
    <message>
        <source>The worker has finished.</source>
        <translation>La tâche est terminée.</translation>
    </message>
</context>
<context>
    <name>FatalPage</name>
    <message>
        <source>Little free space</source>
        <translation>Peu d’espace libre</translation>
    </message>
    <message>
        <source>The drive of the temporary folder is almost full.</source>
        <translation>Le disque du dossier temporaire est presque plein.</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Mémoire insuffisante</translation>
    </message>
    <message>
        <source>A program of its own, which will be closed.</source>
        <translation>Un programme autonome, qui sera fermé.</translation>
    </message>
    <message>
        <source>Out of memory in the photo editor</source>
        <translation>Mémoire insuffisante dans l’éditeur d’images</translation>
    </message>
    <message>
        <source>The editor may become unstable.</source>
        <translation>L’éditeur peut devenir instable.</translation>
    </message>
    <message>
        <source>Unhandled exception</source>
        <translation>Exception non gérée</translation>
    </message>
    <message>
        <source>The program will be closed.</source>
        <translation>Le programme sera fermé.</translation>
    </message>
    <message>
        <source>The texts are prepared in the current language while all is well. On Windows the system&apos;s own message box shows them, on Linux a message program (kdialog, zenity or xmessage) or the standard error output.</source>
        <translation>Les textes sont préparés à l’avance dans la langue actuelle. Sous Windows, la boîte de message du système les affiche ; sous Linux, un programme de message (kdialog, zenity ou xmessage) ou la sortie d’erreur standard.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Shown and closed: %1</source>
        <translation>Affiché et fermé : %1</translation>
    </message>
</context>
<context>
    <name>FilesPage</name>
    <message>
        <source>File name</source>
        <translation>Nom de fichier</translation>
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
        <source>As a name</source>
        <translation>Comme nom</translation>
    </message>
    <message>
        <source>As a path</source>
        <translation>Comme chemin</translation>
    </message>
    <message>
        <source>First path</source>
        <translation>Premier chemin</translation>
    </message>
    <message>
        <source>Second path</source>
        <translation>Deuxième chemin</translation>
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
        <source>Compared as a whole</source>
        <translation>Comparés en entier</translation>
    </message>
    <message>
        <source>Compared without the suffix</source>
        <translation>Comparés sans l’extension</translation>
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
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Choisir…</translation>
    </message>
    <message>
        <source>Pack</source>
        <translation>Compresser</translation>
    </message>
    <message>
        <source>Packing</source>
        <translation>Compression</translation>
    </message>
    <message>
        <source>Unpack</source>
        <translation>Extraire</translation>
    </message>
    <message>
        <source>Unpacking</source>
        <translation>Extraction</translation>
    </message>
    <message>
        <source>Show in the file browser</source>
        <translation>Afficher dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>Asked the file browser to show %1.</source>
        <translation>Le gestionnaire de fichiers a été prié d’afficher %1.</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Choisir un dossier</translation>
    </message>
    <message>
        <source>Cancelled: no archive is left.</source>
        <translation>Annulé : aucune archive ne subsiste.</translation>
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
    <message>
        <source>Now in use: %1</source>
        <translation>Maintenant utilisée : %1</translation>
    </message>
    <message>
        <source>Already in use: %1</source>
        <translation>Déjà utilisée : %1</translation>
    </message>
</context>
<context>
    <name>LogModel</name>
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
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Niveau</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>Fonction</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
</context>
<context>
    <name>LoggingPage</name>
    <message>
        <source>Log folder</source>
        <translation>Dossier des journaux</translation>
    </message>
    <message>
        <source>Minimum level written</source>
        <translation>Niveau minimal écrit</translation>
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
        <source>Show from</source>
        <translation>Afficher à partir de</translation>
    </message>
    <message>
        <source>The log of this process</source>
        <translation>Le journal de ce processus</translation>
    </message>
    <message>
        <source>Logged at the level %1.</source>
        <translation>Inscrit au niveau %1.</translation>
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
        <source>%1: read and closed.</source>
        <translation>%1 : lu et fermé.</translation>
    </message>
    <message>
        <source>%1: the answer is %2.</source>
        <translation>%1 : la réponse est %2.</translation>
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
    <name>Pages</name>
    <message>
        <source>Workplace</source>
        <translation>Espace de travail</translation>
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
        <source>Languages</source>
        <translation>Langues</translation>
    </message>
    <message>
        <source>One choice for all products; texts, dates and numbers follow it at once.</source>
        <translation>Un seul choix pour tous les produits ; textes, dates et nombres suivent aussitôt.</translation>
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
        <source>State and process</source>
        <translation>État et processus</translation>
    </message>
    <message>
        <source>What the product remembers about its launches, and the process it runs in.</source>
        <translation>Ce que le produit retient de ses lancements, et le processus dans lequel il tourne.</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Names, sizes, archives and the file browser.</source>
        <translation>Noms, tailles, archives et gestionnaire de fichiers.</translation>
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
        <source>Resources</source>
        <translation>Ressources</translation>
    </message>
    <message>
        <source>Icons, fonts, countries, rules and style sheets that come with the library.</source>
        <translation>Icônes, polices, pays, règles et feuilles de style fournies avec la bibliothèque.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>Standard widgets under the product&apos;s style and style sheets, in the states that they can be in.</source>
        <translation>Les éléments standard sous le style et les feuilles de style du produit, dans les états qu’ils peuvent prendre.</translation>
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
        <source>Fatal messages</source>
        <translation>Erreurs fatales</translation>
    </message>
    <message>
        <source>Texts that can be shown when the process is in trouble, without allocating memory.</source>
        <translation>Textes affichables quand le processus est en difficulté, sans allouer de mémoire.</translation>
    </message>
    <message>
        <source>Web service</source>
        <translation>Service web</translation>
    </message>
    <message>
        <source>A SOAP client and the small service that it asks, both in this process.</source>
        <translation>Un client SOAP et le petit service qu’il interroge, tous deux dans ce processus.</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>Every line goes through one bridge to the logger of the process.</source>
        <translation>Chaque ligne passe par un seul pont vers l’enregistreur du processus.</translation>
    </message>
</context>
<context>
    <name>ResourcesPage</name>
    <message>
        <source>Icons</source>
        <translation>Icônes</translation>
    </message>
    <message>
        <source>Fonts</source>
        <translation>Polices</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>Pays</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Règles</translation>
    </message>
    <message>
        <source>Style sheets</source>
        <translation>Feuilles de style</translation>
    </message>
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
        <source>Checked</source>
        <translation>Coché</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Focus</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenêtre</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Échelle</translation>
    </message>
    <message>
        <source>Ground</source>
        <translation>Fond</translation>
    </message>
    <message>
        <source>Copy the path</source>
        <translation>Copier le chemin</translation>
    </message>
    <message>
        <source>The six preferred countries stand above the line, which cannot be chosen.</source>
        <translation>Les six pays privilégiés figurent au-dessus de la ligne, qui ne peut pas être choisie.</translation>
    </message>
    <message numerus="yes">
        <source>%n rule(s) lead on from</source>
        <translation>
            <numerusform>%n règle part de</numerusform>
            <numerusform>%n règles partent de</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n icon(s)</source>
        <translation>
            <numerusform>%n icône</numerusform>
            <numerusform>%n icônes</numerusform>
        </translation>
    </message>
    <message>
        <source>No icon is chosen.</source>
        <translation>Aucune icône n’est choisie.</translation>
    </message>
    <message>
        <source>Copied: %1</source>
        <translation>Copié : %1</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Keep all settings in a temporary file, which is removed afterwards</source>
        <translation>Garder tous les réglages dans un fichier temporaire, supprimé ensuite</translation>
    </message>
    <message>
        <source>Logged from the next start on: %1</source>
        <translation>Journalisé dès le prochain démarrage : %1</translation>
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
        <source>Stored: on</source>
        <translation>Enregistré : oui</translation>
    </message>
    <message>
        <source>Stored: off</source>
        <translation>Enregistré : non</translation>
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
        <source>Removed: %1</source>
        <translation>Supprimé : %1</translation>
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
        <source>Written into the file of the product family.</source>
        <translation>Écrit dans le fichier de la famille de produits.</translation>
    </message>
    <message>
        <source>The file of the product family cannot be written.</source>
        <translation>Le fichier de la famille de produits ne peut pas être écrit.</translation>
    </message>
    <message>
        <source>Settings are kept in %1.</source>
        <translation>Les réglages sont conservés dans %1.</translation>
    </message>
    <message>
        <source>Settings are kept in the system&apos;s own store again.</source>
        <translation>Les réglages sont de nouveau conservés dans les réglages du système.</translation>
    </message>
    <message>
        <source>Written and read back: %1 = %2</source>
        <translation>Écrit et relu : %1 = %2</translation>
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
    <message>
        <source>Show the code</source>
        <translation>Afficher le code</translation>
    </message>
    <message>
        <source>Code of this page</source>
        <translation>Code de cette page</translation>
    </message>
</context>
<context>
    <name>StatePage</name>
    <message>
        <source>First launch on this profile</source>
        <translation>Premier lancement de ce profil</translation>
    </message>
    <message>
        <source>Mode of the last launch</source>
        <translation>Mode du dernier lancement</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>aucun pour l’instant</translation>
    </message>
    <message>
        <source>Identifier of this user</source>
        <translation>Identifiant de cet utilisateur</translation>
    </message>
    <message>
        <source>Reseller</source>
        <translation>Revendeur</translation>
    </message>
    <message>
        <source>Results saved as actions</source>
        <translation>Résultats enregistrés comme actions</translation>
    </message>
    <message>
        <source>Crash reports may be sent</source>
        <translation>Envoi des rapports d’incident autorisé</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>Processus</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>File version</source>
        <translation>Version du fichier</translation>
    </message>
    <message>
        <source>unknown: the file carries no version</source>
        <translation>inconnue : le fichier ne porte pas de version</translation>
    </message>
    <message>
        <source>Process number</source>
        <translation>Numéro du processus</translation>
    </message>
    <message>
        <source>Folder of the Qt plug-ins</source>
        <translation>Dossier des plug-ins Qt</translation>
    </message>
    <message>
        <source>Crash counter</source>
        <translation>Compteur de plantages</translation>
    </message>
    <message>
        <source>A module counts up before risky work and resets the counter after it. What is left after a crash is seen at the next start.</source>
        <translation>Un module incrémente le compteur avant un travail risqué et le remet à zéro ensuite. Ce qui reste après un plantage se voit au démarrage suivant.</translation>
    </message>
    <message>
        <source>Runs that ended abnormally</source>
        <translation>Exécutions interrompues</translation>
    </message>
    <message>
        <source>Count up</source>
        <translation>Incrémenter</translation>
    </message>
    <message>
        <source>Counted up: work is under way.</source>
        <translation>Incrémenté : le travail est en cours.</translation>
    </message>
    <message>
        <source>Reset the counter</source>
        <translation>Remettre le compteur à zéro</translation>
    </message>
    <message>
        <source>Reset: the work ended well.</source>
        <translation>Remis à zéro : le travail s’est bien terminé.</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>oui</translation>
    </message>
    <message>
        <source>no</source>
        <translation>non</translation>
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
        <source>Read again at %1.</source>
        <translation>Relu à %1.</translation>
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
        <source>Check boxes and radio buttons</source>
        <translation>Cases à cocher et boutons radio</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Partly</source>
        <translation>En partie</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Old harbour at dusk</source>
        <translation>Vieux port au crépuscule</translation>
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
        <source>Cannot be changed</source>
        <translation>Non modifiable</translation>
    </message>
    <message>
        <source>Choices and numbers</source>
        <translation>Choix et nombres</translation>
    </message>
    <message>
        <source>Ranges and progress</source>
        <translation>Plages et progression</translation>
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
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Grille</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Rotation à gauche</translation>
    </message>
</context>
<context>
    <name>ToolPanel</name>
    <message>
        <source>Horizon</source>
        <translation>Horizon</translation>
    </message>
    <message>
        <source>Drag a line along what should be level. With Shift it turns in steps of 15°.</source>
        <translation>Tracez une ligne le long de ce qui doit être horizontal. Avec Maj, elle tourne par pas de 15°.</translation>
    </message>
    <message>
        <source>Keystoning</source>
        <translation>Correction trapézoïdale</translation>
    </message>
    <message>
        <source>Lay both lines along edges that are upright in reality. They snap to the thirds of the picture and to each other; with Ctrl they do not.</source>
        <translation>Placez les deux lignes le long d’arêtes verticales dans la réalité. Elles s’aimantent aux tiers de l’image et l’une à l’autre ; pas avec Ctrl.</translation>
    </message>
    <message>
        <source>Distortion</source>
        <translation>Distorsion</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Recadrage</translation>
    </message>
    <message>
        <source>Tilt-shift</source>
        <translation>Bascule et décentrement</translation>
    </message>
    <message>
        <source>What lies between the outer lines stays sharp.</source>
        <translation>Ce qui se trouve entre les lignes extérieures reste net.</translation>
    </message>
    <message>
        <source>No tool</source>
        <translation>Aucun outil</translation>
    </message>
    <message>
        <source>Choose a tool at the left. The rules of the product decide what else a click switches on, switches off or applies.</source>
        <translation>Choisissez un outil à gauche. Les règles du produit décident de ce qu’un clic active, désactive ou applique en plus.</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Valider</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Reset this tool</source>
        <translation>Réinitialiser cet outil</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>From pincushion to barrel</source>
        <translation>Du coussinet au barillet</translation>
    </message>
    <message>
        <source>Search, for example: canon 24-70</source>
        <translation>Rechercher, par exemple : canon 24-70</translation>
    </message>
    <message>
        <source>Camera and lens</source>
        <translation>Appareil et objectif</translation>
    </message>
    <message>
        <source>Lenses found</source>
        <translation>Objectifs trouvés</translation>
    </message>
    <message>
        <source>Every word has to occur, in any order.</source>
        <translation>Tous les mots doivent figurer, dans n’importe quel ordre.</translation>
    </message>
    <message>
        <source>Aspect ratio</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Flou</translation>
    </message>
    <message>
        <source>Width of the sharp area</source>
        <translation>Largeur de la zone nette</translation>
    </message>
    <message>
        <source>The calibration database cannot be read.</source>
        <translation>La base de calibration ne peut pas être lue.</translation>
    </message>
    <message numerus="yes">
        <source>%n lens(es) found</source>
        <translation>
            <numerusform>%n objectif trouvé</numerusform>
            <numerusform>%n objectifs trouvés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n millisecond(s)</source>
        <translation>
            <numerusform>%n milliseconde</numerusform>
            <numerusform>%n millisecondes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WebServicePage</name>
    <message>
        <source>Request</source>
        <translation>Requête</translation>
    </message>
    <message>
        <source>Answer</source>
        <translation>Réponse</translation>
    </message>
    <message>
        <source>The service has not been asked yet.</source>
        <translation>Le service n’a pas encore été interrogé.</translation>
    </message>
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
        <source>Fault: %1</source>
        <translation>Erreur : %1</translation>
    </message>
    <message>
        <source>%1 cm</source>
        <translation>%1 cm</translation>
    </message>
</context>
<context>
    <name>Workplace</name>
    <message>
        <source>Horizon</source>
        <translation>Horizon</translation>
    </message>
    <message>
        <source>Keystoning</source>
        <translation>Correction trapézoïdale</translation>
    </message>
    <message>
        <source>Distortion</source>
        <translation>Distorsion</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Recadrage</translation>
    </message>
    <message>
        <source>Tilt-shift</source>
        <translation>Bascule et décentrement</translation>
    </message>
    <message numerus="yes">
        <source>%n rule(s) read. The rule behind a click is shown here.</source>
        <translation>
            <numerusform>%n règle lue. La règle derrière chaque clic s’affiche ici.</numerusform>
            <numerusform>%n règles lues. La règle derrière chaque clic s’affiche ici.</numerusform>
        </translation>
    </message>
    <message>
        <source>The rules cannot be read: %1</source>
        <translation>Les règles ne peuvent pas être lues : %1</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Ouvrir…</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Reset all corrections</source>
        <translation>Réinitialiser toutes les corrections</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Grille</translation>
    </message>
    <message>
        <source>Preview of the current tool</source>
        <translation>Aperçu de l’outil actuel</translation>
    </message>
    <message>
        <source>Compare before and after</source>
        <translation>Comparer avant et après</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Préréglages</translation>
    </message>
    <message>
        <source>Save the corrections as a preset</source>
        <translation>Enregistrer les corrections comme préréglage</translation>
    </message>
    <message>
        <source>Apply to the full picture</source>
        <translation>Appliquer à l’image entière</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Enregistrer…</translation>
    </message>
    <message>
        <source>Pack…</source>
        <translation>Compresser…</translation>
    </message>
    <message>
        <source>Send to the recycle bin</source>
        <translation>Placer dans la Corbeille</translation>
    </message>
    <message>
        <source>No rule of %1 holds for %2.</source>
        <translation>Aucune règle de %1 ne s’applique à %2.</translation>
    </message>
    <message>
        <source>Rule: %1</source>
        <translation>Règle : %1</translation>
    </message>
    <message>
        <source>Bring back from the recycle bin</source>
        <translation>Récupérer depuis la Corbeille</translation>
    </message>
    <message>
        <source>No corrections yet</source>
        <translation>Aucune correction pour l’instant</translation>
    </message>
    <message>
        <source>Open a photo</source>
        <translation>Ouvrir une photo</translation>
    </message>
    <message>
        <source>Pictures (*.jpg *.jpeg *.png *.bmp)</source>
        <translation>Images (*.jpg *.jpeg *.png *.bmp)</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 ne peut pas être lu : %2</translation>
    </message>
    <message>
        <source>Applying the corrections</source>
        <translation>Application des corrections</translation>
    </message>
    <message>
        <source>Stopped. The picture is unchanged.</source>
        <translation>Arrêté. L’image est inchangée.</translation>
    </message>
    <message>
        <source>%1 cannot be read any more.</source>
        <translation>%1 ne peut plus être lu.</translation>
    </message>
    <message>
        <source>Applied in %1 s</source>
        <translation>Appliqué en %1 s</translation>
    </message>
    <message>
        <source>Measure: %1</source>
        <translation>Mesure : %1</translation>
    </message>
    <message>
        <source>Save the picture</source>
        <translation>Enregistrer l’image</translation>
    </message>
    <message>
        <source>Pictures (*.jpg *.png)</source>
        <translation>Images (*.jpg *.png)</translation>
    </message>
    <message>
        <source>Saving %1</source>
        <translation>Enregistrement de %1</translation>
    </message>
    <message>
        <source>%1 cannot be saved: %2</source>
        <translation>%1 ne peut pas être enregistré : %2</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Enregistré : %1</translation>
    </message>
    <message>
        <source>Pack the saved pictures</source>
        <translation>Compresser les images enregistrées</translation>
    </message>
    <message>
        <source>Archives (*.zip)</source>
        <translation>Archives (*.zip)</translation>
    </message>
    <message>
        <source>Packing %1</source>
        <translation>Compression de %1</translation>
    </message>
    <message>
        <source>Save a preset</source>
        <translation>Enregistrer un préréglage</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>My preset</source>
        <translation>Mon préréglage</translation>
    </message>
    <message>
        <source>Preset saved: %1</source>
        <translation>Préréglage enregistré : %1</translation>
    </message>
    <message>
        <source>Brought back: %1</source>
        <translation>Récupéré : %1</translation>
    </message>
    <message>
        <source>Cannot be brought back: %1</source>
        <translation>Impossible à récupérer : %1</translation>
    </message>
    <message>
        <source>In the recycle bin: %1</source>
        <translation>Dans la Corbeille : %1</translation>
    </message>
    <message>
        <source>Cannot be moved to the recycle bin: %1</source>
        <translation>Impossible de placer dans la Corbeille : %1</translation>
    </message>
    <message>
        <source>Before and after are alike.</source>
        <translation>Avant et après sont semblables.</translation>
    </message>
    <message>
        <source>Before and after differ.</source>
        <translation>Avant et après diffèrent.</translation>
    </message>
</context>
</TS>
