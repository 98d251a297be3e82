<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>AsyncPage</name>
    <message numerus="yes">
        <source>%n request(s)</source>
        <translation>
            <numerusform>要求 %n 回</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n call(s)</source>
        <translation>
            <numerusform>呼び出し %n 回</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The wait is over. %n click(s) held back and delivered afterwards.</source>
        <translation>
            <numerusform>待機が終わりました。保留して後で届けたクリック：%n 回</numerusform>
        </translation>
    </message>
    <message>
        <source>Delayed calls</source>
        <translation>遅延呼び出し</translation>
    </message>
    <message>
        <source>Requests</source>
        <translation>要求</translation>
    </message>
    <message>
        <source>Move the slider: its many requests become one call.</source>
        <translation>スライダーを動かすと、多くの要求が 1 回の呼び出しになります。</translation>
    </message>
    <message>
        <source>Periodic call</source>
        <translation>定期的な呼び出し</translation>
    </message>
    <message>
        <source>Not running.</source>
        <translation>停止中。</translation>
    </message>
    <message>
        <source>Waits</source>
        <translation>待機</translation>
    </message>
    <message>
        <source>No clicks yet.</source>
        <translation>まだクリックがありません。</translation>
    </message>
    <message>
        <source>Wait, input excluded</source>
        <translation>入力を止めて待機</translation>
    </message>
    <message>
        <source>Wait for a worker</source>
        <translation>ワーカーを待機</translation>
    </message>
    <message>
        <source>Click me meanwhile</source>
        <translation>その間にクリック</translation>
    </message>
    <message numerus="yes">
        <source>%n click(s)</source>
        <translation>
            <numerusform>クリック %n 回</numerusform>
        </translation>
    </message>
    <message>
        <source>While the page waits, clicks are held back and delivered after the wait.</source>
        <translation>待機中のクリックは保留され、待機後に届きます。</translation>
    </message>
    <message>
        <source>Every %1 ms.</source>
        <translation>%1 ミリ秒ごと。</translation>
    </message>
    <message numerus="yes">
        <source>Stopped after %n call(s).</source>
        <translation>
            <numerusform>%n 回の呼び出しで停止しました。</numerusform>
        </translation>
    </message>
    <message>
        <source>Waiting for %1 ms. Clicks are held back.</source>
        <translation>%1 ms 待機中です。クリックは保留されます。</translation>
    </message>
    <message>
        <source>Waiting for a worker. Clicks are delivered at once.</source>
        <translation>ワーカーを待っています。クリックはすぐに届きます。</translation>
    </message>
    <message>
        <source>The worker has finished.</source>
        <translation>ワーカーが終了しました。</translation>
    </message>
</context>
<context>
    <name>FatalPage</name>
    <message>
        <source>Little free space</source>
        <translation>空き容量の不足</translation>
    </message>
    <message>
        <source>The drive of the temporary folder is almost full.</source>
        <translation>一時フォルダーのドライブがほぼいっぱいです。</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>メモリ不足</translation>
    </message>
    <message>
        <source>A program of its own, which will be closed.</source>
        <translation>単独のプログラムで、終了します。</translation>
    </message>
    <message>
        <source>Out of memory in the photo editor</source>
        <translation>画像編集ソフトでのメモリ不足</translation>
    </message>
    <message>
        <source>The editor may become unstable.</source>
        <translation>編集ソフトが不安定になることがあります。</translation>
    </message>
    <message>
        <source>Unhandled exception</source>
        <translation>未処理の例外</translation>
    </message>
    <message>
        <source>The program will be closed.</source>
        <translation>プログラムを終了します。</translation>
    </message>
    <message>
        <source>The texts are prepared in the current language while all is well. On Windows the system&apos;s own message box shows them, on Linux a message program (kdialog, zenity or xmessage) or the standard error output.</source>
        <translation>メッセージは正常時に現在の言語で用意されます。Windows ではシステムのメッセージボックス、Linux ではメッセージプログラム（kdialog、zenity、xmessage）または標準エラー出力に表示されます。</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Shown and closed: %1</source>
        <translation>表示して閉じました：%1</translation>
    </message>
</context>
<context>
    <name>FilesPage</name>
    <message>
        <source>File name</source>
        <translation>ファイル名</translation>
    </message>
    <message>
        <source>may be used</source>
        <translation>使用できます</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>使用できません</translation>
    </message>
    <message>
        <source>As a name</source>
        <translation>名前として</translation>
    </message>
    <message>
        <source>As a path</source>
        <translation>パスとして</translation>
    </message>
    <message>
        <source>First path</source>
        <translation>1 つ目のパス</translation>
    </message>
    <message>
        <source>Second path</source>
        <translation>2 つ目のパス</translation>
    </message>
    <message>
        <source>equal</source>
        <translation>同じ</translation>
    </message>
    <message>
        <source>different</source>
        <translation>異なる</translation>
    </message>
    <message>
        <source>Compared as a whole</source>
        <translation>全体の比較</translation>
    </message>
    <message>
        <source>Compared without the suffix</source>
        <translation>拡張子を除いた比較</translation>
    </message>
    <message>
        <source>Sizes as text</source>
        <translation>サイズの表記</translation>
    </message>
    <message>
        <source>A folder as an archive</source>
        <translation>フォルダーをアーカイブにする</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>選択…</translation>
    </message>
    <message>
        <source>Pack</source>
        <translation>圧縮</translation>
    </message>
    <message>
        <source>Packing</source>
        <translation>圧縮しています</translation>
    </message>
    <message>
        <source>Unpack</source>
        <translation>展開</translation>
    </message>
    <message>
        <source>Unpacking</source>
        <translation>展開しています</translation>
    </message>
    <message>
        <source>Show in the file browser</source>
        <translation>ファイルブラウザーで表示</translation>
    </message>
    <message>
        <source>Asked the file browser to show %1.</source>
        <translation>ファイルブラウザーに %1 の表示を依頼しました。</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>フォルダーを選択</translation>
    </message>
    <message>
        <source>Cancelled: no archive is left.</source>
        <translation>キャンセルしました：アーカイブは残っていません。</translation>
    </message>
</context>
<context>
    <name>LanguagesPage</name>
    <message>
        <source>Use this language</source>
        <translation>この言語を使う</translation>
    </message>
    <message>
        <source>What follows the language</source>
        <translation>言語に合わせて変わるもの</translation>
    </message>
    <message>
        <source>A date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>A number</source>
        <translation>数値</translation>
    </message>
    <message>
        <source>A button of Qt</source>
        <translation>Qt のボタン</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>番号</translation>
    </message>
    <message>
        <source>Catalogue</source>
        <translation>翻訳ファイル</translation>
    </message>
    <message>
        <source>Abbreviation</source>
        <translation>略号</translation>
    </message>
    <message>
        <source>Now in use: %1</source>
        <translation>使用中：%1</translation>
    </message>
    <message>
        <source>Already in use: %1</source>
        <translation>すでに使用中：%1</translation>
    </message>
</context>
<context>
    <name>LogModel</name>
    <message>
        <source>Debug</source>
        <translation>デバッグ</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>レベル</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>関数</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
</context>
<context>
    <name>LoggingPage</name>
    <message>
        <source>Log folder</source>
        <translation>ログのフォルダー</translation>
    </message>
    <message>
        <source>Minimum level written</source>
        <translation>記録する最低レベル</translation>
    </message>
    <message>
        <source>A line from the showcase</source>
        <translation>ショーケースからの 1 行</translation>
    </message>
    <message>
        <source>Debug</source>
        <translation>デバッグ</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Show from</source>
        <translation>表示する最低レベル</translation>
    </message>
    <message>
        <source>The log of this process</source>
        <translation>このプロセスのログ</translation>
    </message>
    <message>
        <source>Logged at the level %1.</source>
        <translation>レベル %1 で記録しました。</translation>
    </message>
</context>
<context>
    <name>MessageBoxPage</name>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高さ</translation>
    </message>
    <message>
        <source>Without a text each box brings one of its own.</source>
        <translation>テキストが空のときは、各ボックスの例文が表示されます。</translation>
    </message>
    <message>
        <source>Message boxes</source>
        <translation>メッセージボックス</translation>
    </message>
    <message>
        <source>About dialogs</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>About the product</source>
        <translation>製品について</translation>
    </message>
    <message>
        <source>About the product family</source>
        <translation>製品ファミリーについて</translation>
    </message>
    <message>
        <source>%1: read and closed.</source>
        <translation>%1：読んで閉じました。</translation>
    </message>
    <message>
        <source>%1: the answer is %2.</source>
        <translation>%1：回答は %2 です。</translation>
    </message>
</context>
<context>
    <name>MessageBoxes</name>
    <message>
        <source>Information</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>The picture was saved. You find it beside the original.</source>
        <translation>画像を保存しました。元の画像と同じ場所にあります。</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>No lens profile was found for this picture. Distortion is not corrected.</source>
        <translation>この画像のレンズプロファイルが見つかりません。歪曲収差は補正されません。</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>The picture could not be saved, because the disk is full.</source>
        <translation>ディスクがいっぱいのため、画像を保存できませんでした。</translation>
    </message>
    <message>
        <source>Yes or no</source>
        <translation>はい／いいえ</translation>
    </message>
    <message>
        <source>A picture of this name is there already. Do you want to replace it?</source>
        <translation>同じ名前の画像がすでにあります。置き換えますか？</translation>
    </message>
    <message>
        <source>Save, discard, cancel</source>
        <translation>保存／破棄／キャンセル</translation>
    </message>
    <message>
        <source>The picture was changed. Do you want to save your corrections?</source>
        <translation>画像が変更されました。補正を保存しますか？</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>回転</translation>
    </message>
    <message>
        <source>The camera was held upright. Do you want to rotate the picture?</source>
        <translation>カメラを縦に構えて撮影されています。画像を回転しますか？</translation>
    </message>
    <message>
        <source>Quit during work</source>
        <translation>処理中の終了</translation>
    </message>
    <message>
        <source>Pictures are still being corrected. What is not finished will be lost.</source>
        <translation>補正中の画像があります。未完了の処理は失われます。</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>Workplace</source>
        <translation>作業画面</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Preferences of this product, and the file that the product family shares.</source>
        <translation>この製品の環境設定と、製品ファミリーで共有するファイル。</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>One choice for all products; texts, dates and numbers follow it at once.</source>
        <translation>選択は全製品に共通で、文字、日付、数値はすぐに切り替わります。</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>保存場所</translation>
    </message>
    <message>
        <source>Every folder and file that the product knows.</source>
        <translation>製品が使用するすべてのフォルダーとファイル。</translation>
    </message>
    <message>
        <source>State and process</source>
        <translation>状態とプロセス</translation>
    </message>
    <message>
        <source>What the product remembers about its launches, and the process it runs in.</source>
        <translation>製品が記憶している起動の情報と、実行中のプロセスです。</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Names, sizes, archives and the file browser.</source>
        <translation>名前、サイズ、アーカイブ、ファイルブラウザー。</translation>
    </message>
    <message>
        <source>Asynchronous</source>
        <translation>非同期</translation>
    </message>
    <message>
        <source>Delayed calls, work items and waits: the window answers while something is under way.</source>
        <translation>遅延呼び出し、作業項目、待機：処理中もウィンドウは応答します。</translation>
    </message>
    <message>
        <source>Resources</source>
        <translation>リソース</translation>
    </message>
    <message>
        <source>Icons, fonts, countries, rules and style sheets that come with the library.</source>
        <translation>ライブラリに含まれるアイコン、フォント、国、規則、スタイルシートです。</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外観</translation>
    </message>
    <message>
        <source>Standard widgets under the product&apos;s style and style sheets, in the states that they can be in.</source>
        <translation>製品のスタイルとスタイルシートを適用した標準部品と、その状態ごとの表示です。</translation>
    </message>
    <message>
        <source>Message boxes</source>
        <translation>メッセージボックス</translation>
    </message>
    <message>
        <source>The product&apos;s own boxes: 520 pixels wide, answered by mouse or keyboard.</source>
        <translation>製品独自のボックス：幅 520 ピクセル、マウスでもキーボードでも操作できます。</translation>
    </message>
    <message>
        <source>Fatal messages</source>
        <translation>致命的エラー</translation>
    </message>
    <message>
        <source>Texts that can be shown when the process is in trouble, without allocating memory.</source>
        <translation>プロセスに問題が起きたとき、メモリを確保せずに表示できるメッセージです。</translation>
    </message>
    <message>
        <source>Web service</source>
        <translation>Web サービス</translation>
    </message>
    <message>
        <source>A SOAP client and the small service that it asks, both in this process.</source>
        <translation>SOAP クライアントと、それが問い合わせる小さなサービス。どちらもこのプロセス内で動きます。</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>ログ</translation>
    </message>
    <message>
        <source>Every line goes through one bridge to the logger of the process.</source>
        <translation>すべての行は 1 つのブリッジを通ってプロセスのロガーに届きます。</translation>
    </message>
</context>
<context>
    <name>ResourcesPage</name>
    <message>
        <source>Icons</source>
        <translation>アイコン</translation>
    </message>
    <message>
        <source>Fonts</source>
        <translation>フォント</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>国</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>規則</translation>
    </message>
    <message>
        <source>Style sheets</source>
        <translation>スタイルシート</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>通常</translation>
    </message>
    <message>
        <source>Hover</source>
        <translation>マウスオーバー</translation>
    </message>
    <message>
        <source>Pressed</source>
        <translation>押下</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>選択中</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>無効</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>フォーカス</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>ウィンドウ</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>暗い</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>明るい</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>倍率</translation>
    </message>
    <message>
        <source>Ground</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>Copy the path</source>
        <translation>パスをコピー</translation>
    </message>
    <message>
        <source>The six preferred countries stand above the line, which cannot be chosen.</source>
        <translation>優先する 6 か国は線の上にあります。線は選べません。</translation>
    </message>
    <message numerus="yes">
        <source>%n rule(s) lead on from</source>
        <translation>
            <numerusform>%n 件の規則の出発点：</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n icon(s)</source>
        <translation>
            <numerusform>アイコン %n 個</numerusform>
        </translation>
    </message>
    <message>
        <source>No icon is chosen.</source>
        <translation>アイコンが選ばれていません。</translation>
    </message>
    <message>
        <source>Copied: %1</source>
        <translation>コピーしました：%1</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Keep all settings in a temporary file, which is removed afterwards</source>
        <translation>すべての設定を一時ファイルに保存し、後で削除する</translation>
    </message>
    <message>
        <source>Logged from the next start on: %1</source>
        <translation>次回の起動から記録：%1</translation>
    </message>
    <message>
        <source>Minimum log level</source>
        <translation>ログの最低レベル</translation>
    </message>
    <message>
        <source>Write a log, from the next start on</source>
        <translation>次回の起動からログを書き込む</translation>
    </message>
    <message>
        <source>Crash reports may be sent</source>
        <translation>クラッシュレポートの送信を許可</translation>
    </message>
    <message>
        <source>Stored: on</source>
        <translation>保存しました：オン</translation>
    </message>
    <message>
        <source>Stored: off</source>
        <translation>保存しました：オフ</translation>
    </message>
    <message>
        <source>Any value</source>
        <translation>任意の値</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>書き込む</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Removed: %1</source>
        <translation>削除しました：%1</translation>
    </message>
    <message>
        <source>The file of the product family</source>
        <translation>製品ファミリーのファイル</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Note to the other products</source>
        <translation>他の製品へのメモ</translation>
    </message>
    <message>
        <source>Write into the file</source>
        <translation>ファイルに書き込む</translation>
    </message>
    <message>
        <source>Written into the file of the product family.</source>
        <translation>製品ファミリーのファイルに書き込みました。</translation>
    </message>
    <message>
        <source>The file of the product family cannot be written.</source>
        <translation>製品ファミリーのファイルに書き込めません。</translation>
    </message>
    <message>
        <source>Settings are kept in %1.</source>
        <translation>設定は %1 に保存されます。</translation>
    </message>
    <message>
        <source>Settings are kept in the system&apos;s own store again.</source>
        <translation>設定は再びシステムの設定に保存されます。</translation>
    </message>
    <message>
        <source>Written and read back: %1 = %2</source>
        <translation>書き込んで読み直しました：%1 = %2</translation>
    </message>
</context>
<context>
    <name>ShowcaseWindow</name>
    <message>
        <source>Trelio Frame – Showcase</source>
        <translation>Trelio Frame – ショーケース</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>言語(&amp;L)</translation>
    </message>
    <message>
        <source>Show the code</source>
        <translation>コードを表示</translation>
    </message>
    <message>
        <source>Code of this page</source>
        <translation>このページのコード</translation>
    </message>
</context>
<context>
    <name>StatePage</name>
    <message>
        <source>First launch on this profile</source>
        <translation>このプロファイルでの初回起動</translation>
    </message>
    <message>
        <source>Mode of the last launch</source>
        <translation>前回の起動モード</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>まだありません</translation>
    </message>
    <message>
        <source>Identifier of this user</source>
        <translation>このユーザーの識別子</translation>
    </message>
    <message>
        <source>Reseller</source>
        <translation>販売元</translation>
    </message>
    <message>
        <source>Results saved as actions</source>
        <translation>結果をアクションとして保存</translation>
    </message>
    <message>
        <source>Crash reports may be sent</source>
        <translation>クラッシュレポートの送信を許可</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>プロセス</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>プログラム</translation>
    </message>
    <message>
        <source>File version</source>
        <translation>ファイルのバージョン</translation>
    </message>
    <message>
        <source>unknown: the file carries no version</source>
        <translation>不明：ファイルにバージョンがありません</translation>
    </message>
    <message>
        <source>Process number</source>
        <translation>プロセス番号</translation>
    </message>
    <message>
        <source>Folder of the Qt plug-ins</source>
        <translation>Qt プラグインのフォルダー</translation>
    </message>
    <message>
        <source>Crash counter</source>
        <translation>クラッシュの回数</translation>
    </message>
    <message>
        <source>A module counts up before risky work and resets the counter after it. What is left after a crash is seen at the next start.</source>
        <translation>モジュールは危険な処理の前に数を増やし、後で戻します。クラッシュ後に残った数は次の起動時に分かります。</translation>
    </message>
    <message>
        <source>Runs that ended abnormally</source>
        <translation>異常終了の回数</translation>
    </message>
    <message>
        <source>Count up</source>
        <translation>数を増やす</translation>
    </message>
    <message>
        <source>Counted up: work is under way.</source>
        <translation>増やしました：処理中です。</translation>
    </message>
    <message>
        <source>Reset the counter</source>
        <translation>回数をリセット</translation>
    </message>
    <message>
        <source>Reset: the work ended well.</source>
        <translation>リセットしました：処理は正常に終わりました。</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>あり</translation>
    </message>
    <message>
        <source>no</source>
        <translation>なし</translation>
    </message>
</context>
<context>
    <name>StoragePage</name>
    <message>
        <source>Data of the product</source>
        <translation>製品のデータ</translation>
    </message>
    <message>
        <source>Cache on disk</source>
        <translation>ディスクキャッシュ</translation>
    </message>
    <message>
        <source>Cached token</source>
        <translation>保存されたトークン</translation>
    </message>
    <message>
        <source>Packs of the user</source>
        <translation>ユーザーのパック</translation>
    </message>
    <message>
        <source>Favourite presets</source>
        <translation>お気に入りのプリセット</translation>
    </message>
    <message>
        <source>Calibration data</source>
        <translation>キャリブレーションデータ</translation>
    </message>
    <message>
        <source>Crash reports</source>
        <translation>クラッシュレポート</translation>
    </message>
    <message>
        <source>Crash reports under way</source>
        <translation>作成中のクラッシュレポート</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>ログ</translation>
    </message>
    <message>
        <source>Sample pictures</source>
        <translation>サンプル画像</translation>
    </message>
    <message>
        <source>Preferences of this computer</source>
        <translation>このコンピューターの環境設定</translation>
    </message>
    <message>
        <source>Settings of the product family</source>
        <translation>製品ファミリーの設定</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Read again at %1.</source>
        <translation>%1 に読み直しました。</translation>
    </message>
    <message>
        <source>Purpose</source>
        <translation>用途</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>パス</translation>
    </message>
    <message>
        <source>Exists</source>
        <translation>存在</translation>
    </message>
    <message>
        <source>not on this system</source>
        <translation>このシステムにはありません</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>あり</translation>
    </message>
    <message>
        <source>no</source>
        <translation>なし</translation>
    </message>
</context>
<context>
    <name>StylePage</name>
    <message>
        <source>Normal</source>
        <translation>通常</translation>
    </message>
    <message>
        <source>Hover</source>
        <translation>マウスオーバー</translation>
    </message>
    <message>
        <source>Pressed</source>
        <translation>押下</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>フォーカス</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>無効</translation>
    </message>
    <message>
        <source>Push buttons</source>
        <translation>プッシュボタン</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>既定</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>選択中</translation>
    </message>
    <message>
        <source>Flat</source>
        <translation>フラット</translation>
    </message>
    <message>
        <source>Check boxes and radio buttons</source>
        <translation>チェックボックスとラジオボタン</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Partly</source>
        <translation>一部</translation>
    </message>
    <message>
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Old harbour at dusk</source>
        <translation>夕暮れの古い港</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>場所</translation>
    </message>
    <message>
        <source>Name of the place</source>
        <translation>場所の名前</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Cannot be changed</source>
        <translation>変更できません</translation>
    </message>
    <message>
        <source>Choices and numbers</source>
        <translation>選択と数値</translation>
    </message>
    <message>
        <source>Ranges and progress</source>
        <translation>範囲と進行状況</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>レンズ</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>焦点距離</translation>
    </message>
    <message>
        <source>Aperture</source>
        <translation>絞り</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>グリッド</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>回転</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>左に回転</translation>
    </message>
</context>
<context>
    <name>ToolPanel</name>
    <message>
        <source>Horizon</source>
        <translation>水平</translation>
    </message>
    <message>
        <source>Drag a line along what should be level. With Shift it turns in steps of 15°.</source>
        <translation>水平にしたいものに沿って線を引きます。Shift キーを押すと 15° ずつ回ります。</translation>
    </message>
    <message>
        <source>Keystoning</source>
        <translation>台形補正</translation>
    </message>
    <message>
        <source>Lay both lines along edges that are upright in reality. They snap to the thirds of the picture and to each other; with Ctrl they do not.</source>
        <translation>実際に垂直な縁に 2 本の線を合わせます。線は画像の三分割線や互いに吸着します。Ctrl キーを押すと吸着しません。</translation>
    </message>
    <message>
        <source>Distortion</source>
        <translation>歪曲収差</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>切り抜き</translation>
    </message>
    <message>
        <source>Tilt-shift</source>
        <translation>ティルトシフト</translation>
    </message>
    <message>
        <source>What lies between the outer lines stays sharp.</source>
        <translation>外側の線の間は鮮明なままです。</translation>
    </message>
    <message>
        <source>No tool</source>
        <translation>ツールなし</translation>
    </message>
    <message>
        <source>Choose a tool at the left. The rules of the product decide what else a click switches on, switches off or applies.</source>
        <translation>左のツールを選んでください。クリックで何がオン・オフになり、何が適用されるかは製品の規則が決めます。</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Reset this tool</source>
        <translation>このツールをリセット</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>回転</translation>
    </message>
    <message>
        <source>From pincushion to barrel</source>
        <translation>糸巻き型から樽型まで</translation>
    </message>
    <message>
        <source>Search, for example: canon 24-70</source>
        <translation>検索（例：canon 24-70）</translation>
    </message>
    <message>
        <source>Camera and lens</source>
        <translation>カメラとレンズ</translation>
    </message>
    <message>
        <source>Lenses found</source>
        <translation>見つかったレンズ</translation>
    </message>
    <message>
        <source>Every word has to occur, in any order.</source>
        <translation>すべての語を含むものを順序を問わず探します。</translation>
    </message>
    <message>
        <source>Aspect ratio</source>
        <translation>縦横比</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>ぼかし</translation>
    </message>
    <message>
        <source>Width of the sharp area</source>
        <translation>鮮明な範囲の幅</translation>
    </message>
    <message>
        <source>The calibration database cannot be read.</source>
        <translation>キャリブレーションデータベースを読み込めません。</translation>
    </message>
    <message numerus="yes">
        <source>%n lens(es) found</source>
        <translation>
            <numerusform>レンズ %n 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n millisecond(s)</source>
        <translation>
            <numerusform>%n ミリ秒</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WebServicePage</name>
    <message>
        <source>Request</source>
        <translation>リクエスト</translation>
    </message>
    <message>
        <source>Answer</source>
        <translation>応答</translation>
    </message>
    <message>
        <source>The service has not been asked yet.</source>
        <translation>サービスにはまだ問い合わせていません。</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>数量</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>単位</translation>
    </message>
    <message>
        <source>Ask the service</source>
        <translation>サービスに問い合わせる</translation>
    </message>
    <message>
        <source>Fault: %1</source>
        <translation>エラー: %1</translation>
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
        <translation>水平</translation>
    </message>
    <message>
        <source>Keystoning</source>
        <translation>台形補正</translation>
    </message>
    <message>
        <source>Distortion</source>
        <translation>歪曲収差</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>切り抜き</translation>
    </message>
    <message>
        <source>Tilt-shift</source>
        <translation>ティルトシフト</translation>
    </message>
    <message numerus="yes">
        <source>%n rule(s) read. The rule behind a click is shown here.</source>
        <translation>
            <numerusform>%n 件の規則を読み込みました。クリックの背後にある規則がここに表示されます。</numerusform>
        </translation>
    </message>
    <message>
        <source>The rules cannot be read: %1</source>
        <translation>規則を読み込めません：%1</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>開く…</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Reset all corrections</source>
        <translation>すべての補正をリセット</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>グリッド</translation>
    </message>
    <message>
        <source>Preview of the current tool</source>
        <translation>現在のツールのプレビュー</translation>
    </message>
    <message>
        <source>Compare before and after</source>
        <translation>補正前後を比較</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>プリセット</translation>
    </message>
    <message>
        <source>Save the corrections as a preset</source>
        <translation>補正をプリセットとして保存</translation>
    </message>
    <message>
        <source>Apply to the full picture</source>
        <translation>画像全体に適用</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>保存…</translation>
    </message>
    <message>
        <source>Pack…</source>
        <translation>圧縮…</translation>
    </message>
    <message>
        <source>Send to the recycle bin</source>
        <translation>ごみ箱に移動</translation>
    </message>
    <message>
        <source>No rule of %1 holds for %2.</source>
        <translation>%2 に当てはまる %1 の規則はありません。</translation>
    </message>
    <message>
        <source>Rule: %1</source>
        <translation>規則：%1</translation>
    </message>
    <message>
        <source>Bring back from the recycle bin</source>
        <translation>ごみ箱から元に戻す</translation>
    </message>
    <message>
        <source>No corrections yet</source>
        <translation>補正はまだありません</translation>
    </message>
    <message>
        <source>Open a photo</source>
        <translation>写真を開く</translation>
    </message>
    <message>
        <source>Pictures (*.jpg *.jpeg *.png *.bmp)</source>
        <translation>画像 (*.jpg *.jpeg *.png *.bmp)</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 を読み込めません：%2</translation>
    </message>
    <message>
        <source>Applying the corrections</source>
        <translation>補正を適用しています</translation>
    </message>
    <message>
        <source>Stopped. The picture is unchanged.</source>
        <translation>停止しました。画像は変わっていません。</translation>
    </message>
    <message>
        <source>%1 cannot be read any more.</source>
        <translation>%1 を読み込めなくなりました。</translation>
    </message>
    <message>
        <source>Applied in %1 s</source>
        <translation>%1 秒で適用しました</translation>
    </message>
    <message>
        <source>Measure: %1</source>
        <translation>差の値：%1</translation>
    </message>
    <message>
        <source>Save the picture</source>
        <translation>画像を保存</translation>
    </message>
    <message>
        <source>Pictures (*.jpg *.png)</source>
        <translation>画像 (*.jpg *.png)</translation>
    </message>
    <message>
        <source>Saving %1</source>
        <translation>%1 を保存しています</translation>
    </message>
    <message>
        <source>%1 cannot be saved: %2</source>
        <translation>%1 を保存できません：%2</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>保存しました：%1</translation>
    </message>
    <message>
        <source>Pack the saved pictures</source>
        <translation>保存した画像を圧縮</translation>
    </message>
    <message>
        <source>Archives (*.zip)</source>
        <translation>アーカイブ (*.zip)</translation>
    </message>
    <message>
        <source>Packing %1</source>
        <translation>%1 に圧縮しています</translation>
    </message>
    <message>
        <source>Save a preset</source>
        <translation>プリセットを保存</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>My preset</source>
        <translation>マイプリセット</translation>
    </message>
    <message>
        <source>Preset saved: %1</source>
        <translation>プリセットを保存しました：%1</translation>
    </message>
    <message>
        <source>Brought back: %1</source>
        <translation>元に戻しました：%1</translation>
    </message>
    <message>
        <source>Cannot be brought back: %1</source>
        <translation>元に戻せません：%1</translation>
    </message>
    <message>
        <source>In the recycle bin: %1</source>
        <translation>ごみ箱に移動しました：%1</translation>
    </message>
    <message>
        <source>Cannot be moved to the recycle bin: %1</source>
        <translation>ごみ箱に移動できません：%1</translation>
    </message>
    <message>
        <source>Before and after are alike.</source>
        <translation>補正前後に違いはありません。</translation>
    </message>
    <message>
        <source>Before and after differ.</source>
        <translation>補正前後に違いがあります。</translation>
    </message>
</context>
</TS>
