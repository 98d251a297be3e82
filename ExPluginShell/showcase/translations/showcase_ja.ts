<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>AsyncPage</name>
    <message>
        <source>Move the slider: its many requests become one call.</source>
        <translation>スライダーを動かすと、多くの要求が 1 回の呼び出しになります。</translation>
    </message>
    <message>
        <source>Not running.</source>
        <translation>停止中。</translation>
    </message>
    <message>
        <source>While the page waits, clicks are held back and delivered after the wait.</source>
        <translation>待機中のクリックは保留され、待機後に届きます。</translation>
    </message>
    <message>
        <source>Clicks: 0</source>
        <translation>クリック：0</translation>
    </message>
    <message>
        <source>%1 items on a pool of two threads.</source>
        <translation>2 スレッドのプールで %1 件の処理。</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Delayed calls</source>
        <translation>遅延呼び出し</translation>
    </message>
    <message>
        <source>Periodic call</source>
        <translation>定期的な呼び出し</translation>
    </message>
    <message>
        <source>Work items</source>
        <translation>作業項目</translation>
    </message>
    <message>
        <source>Waits</source>
        <translation>待機</translation>
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
    <message>
        <source>Requests: %1, calls: %2</source>
        <translation>要求：%1、呼び出し：%2</translation>
    </message>
    <message>
        <source>Every %1 ms.</source>
        <translation>%1 ミリ秒ごと。</translation>
    </message>
    <message>
        <source>Stopped. Calls: %1</source>
        <translation>停止しました。呼び出し：%1</translation>
    </message>
    <message>
        <source>Calls: %1</source>
        <translation>呼び出し：%1</translation>
    </message>
    <message>
        <source>%1 of %2 items finished, %3 of them stopped.</source>
        <translation>%2 件中 %1 件が終了、うち %3 件は停止。</translation>
    </message>
    <message>
        <source>Waiting for %1 ms. Clicks are held back.</source>
        <translation>%1 ms 待機中です。クリックは保留されます。</translation>
    </message>
    <message>
        <source>The wait is over. Clicks held back and delivered now: %1</source>
        <translation>待機が終わりました。保留して届けたクリック：%1</translation>
    </message>
    <message>
        <source>Waiting for a worker. Clicks are delivered at once.</source>
        <translation>ワーカーを待っています。クリックはすぐに届きます。</translation>
    </message>
    <message>
        <source>The worker has finished.</source>
        <translation>ワーカーが終了しました。</translation>
    </message>
    <message>
        <source>Clicks: %1</source>
        <translation>クリック：%1</translation>
    </message>
</context>
<context>
    <name>DrawingPage</name>
    <message>
        <source>Drag across the picture to draw a line</source>
        <translation>画像の上をドラッグして線を引く</translation>
    </message>
    <message>
        <source>Picture with guide lines</source>
        <translation>ガイド線付きの画像</translation>
    </message>
    <message>
        <source>Insert adds a line and Delete removes it, Page Up and Page Down choose one, the arrow keys move its end, with Shift its start.</source>
        <translation>Insert で線を追加、Delete で削除、Page Up と Page Down で選択します。矢印キーで終点を、Shift と矢印キーで始点を動かします。</translation>
    </message>
    <message>
        <source>Stretch the pattern</source>
        <translation>パターンを引き伸ばす</translation>
    </message>
    <message>
        <source>Remove all lines</source>
        <translation>すべての線を削除</translation>
    </message>
    <message>
        <source>Lines: %1</source>
        <translation>線：%1</translation>
    </message>
</context>
<context>
    <name>FilesPage</name>
    <message>
        <source>File name</source>
        <translation>ファイル名</translation>
    </message>
    <message>
        <source>As a name and as a path</source>
        <translation>名前として、パスとして</translation>
    </message>
    <message>
        <source>Two paths</source>
        <translation>2つのパス</translation>
    </message>
    <message>
        <source>As a whole and without suffix</source>
        <translation>全体、および拡張子なし</translation>
    </message>
    <message>
        <source>Sizes as text</source>
        <translation>サイズの表記</translation>
    </message>
    <message>
        <source>A folder as an archive</source>
        <translation>フォルダーをアーカイブに</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>選択…</translation>
    </message>
    <message>
        <source>Pack</source>
        <translation>圧縮</translation>
    </message>
    <message>
        <source>Unpack and compare</source>
        <translation>展開して比較</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>The archive</source>
        <translation>アーカイブ</translation>
    </message>
    <message>
        <source>Show in the file browser</source>
        <translation>ファイルブラウザーで表示</translation>
    </message>
    <message>
        <source>Send to the recycle bin</source>
        <translation>ごみ箱に移動</translation>
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
        <source>equal</source>
        <translation>同じ</translation>
    </message>
    <message>
        <source>different</source>
        <translation>異なる</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>フォルダーを選択</translation>
    </message>
    <message>
        <source>Not done: cancelled, or a file can&apos;t be read or written.</source>
        <translation>実行されませんでした：キャンセルされたか、ファイルを読み書きできません。</translation>
    </message>
    <message>
        <source>Files packed: %1, archive: %2</source>
        <translation>圧縮したファイル：%1、アーカイブ：%2</translation>
    </message>
    <message>
        <source>Files unpacked: %1. Both folders are equal.</source>
        <translation>展開したファイル：%1。両方のフォルダーは同じです。</translation>
    </message>
    <message>
        <source>The folders differ: %1</source>
        <translation>フォルダーが異なります：%1</translation>
    </message>
    <message>
        <source>The archive is in the recycle bin.</source>
        <translation>アーカイブはごみ箱にあります。</translation>
    </message>
    <message>
        <source>There is no archive.</source>
        <translation>アーカイブがありません。</translation>
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
</context>
<context>
    <name>LoggingPage</name>
    <message>
        <source>Log folder</source>
        <translation>ログのフォルダー</translation>
    </message>
    <message>
        <source>Minimum level</source>
        <translation>最低レベル</translation>
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
        <source>The log of this process</source>
        <translation>このプロセスのログ</translation>
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
        <source>No answer yet</source>
        <translation>まだ回答はありません</translation>
    </message>
    <message>
        <source>The last answer: %1</source>
        <translation>最後の回答：%1</translation>
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
    <name>NativeDialogsPage</name>
    <message>
        <source>Pictures (*.jpg *.png *.tif);;All files (*)</source>
        <translation>画像 (*.jpg *.png *.tif);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Open a file</source>
        <translation>ファイルを開く</translation>
    </message>
    <message>
        <source>Open files</source>
        <translation>複数のファイルを開く</translation>
    </message>
    <message>
        <source>Save a file</source>
        <translation>ファイルを保存</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>フォルダーを選択</translation>
    </message>
    <message>
        <source>Choose a folder by its pictures</source>
        <translation>画像を見てフォルダーを選択</translation>
    </message>
    <message>
        <source>What was chosen</source>
        <translation>選択されたもの</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>Logging</source>
        <translation>ログ</translation>
    </message>
    <message>
        <source>Every line goes through one bridge to the logger of the process.</source>
        <translation>すべての行は 1 つのブリッジを通ってプロセスのロガーに届きます。</translation>
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
        <source>Storage</source>
        <translation>保存場所</translation>
    </message>
    <message>
        <source>Every folder and file that the product knows.</source>
        <translation>製品が使用するすべてのフォルダーとファイル。</translation>
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
        <source>Asynchronous</source>
        <translation>非同期</translation>
    </message>
    <message>
        <source>Delayed calls, work items and waits: the window answers while something is under way.</source>
        <translation>遅延呼び出し、作業項目、待機：処理中もウィンドウは応答します。</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Names, sizes, archives, the recycle bin and the file browser.</source>
        <translation>名前、サイズ、アーカイブ、ごみ箱、ファイルブラウザー。</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外観</translation>
    </message>
    <message>
        <source>Every standard widget under the product&apos;s style and style sheets.</source>
        <translation>製品のスタイルとスタイルシートを適用した標準ウィジェット。</translation>
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
        <source>Drawing tools</source>
        <translation>描画ツール</translation>
    </message>
    <message>
        <source>Guide lines and cursors of the correction tools, on a picture painted by code.</source>
        <translation>補正ツールのガイド線とカーソル。画像はプログラムで描いたものです。</translation>
    </message>
    <message>
        <source>Native dialogs</source>
        <translation>システムのダイアログ</translation>
    </message>
    <message>
        <source>The dialogs of the system for files and folders.</source>
        <translation>ファイルとフォルダーを選ぶシステムのダイアログ。</translation>
    </message>
    <message>
        <source>Web service</source>
        <translation>Web サービス</translation>
    </message>
    <message>
        <source>A SOAP client and the small service that it asks, both in this process.</source>
        <translation>SOAP クライアントと、それが問い合わせる小さなサービス。どちらもこのプロセス内で動きます。</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Values are kept in</source>
        <translation>値の保存先</translation>
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
        <source>a temporary file, gone at the end</source>
        <translation>一時ファイル（終了時に消えます）</translation>
    </message>
    <message>
        <source>the system&apos;s own store</source>
        <translation>システムの設定ストア</translation>
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
        <source>Other buttons</source>
        <translation>その他のボタン</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>A tool tip explains in one sentence.</source>
        <translation>ツールチップは一文で説明します。</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Correct automatically</source>
        <translation>自動補正</translation>
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
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Partly</source>
        <translation>一部</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Old harbour at dusk</source>
        <translation>夕暮れの古い港</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
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
        <source>Can be read only</source>
        <translation>読み取り専用</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>Cannot be changed</source>
        <translation>変更できません</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>ショートカット</translation>
    </message>
    <message>
        <source>Choices and numbers</source>
        <translation>選択と数値</translation>
    </message>
    <message>
        <source>Perspective</source>
        <translation>遠近感</translation>
    </message>
    <message>
        <source>Ranges and progress</source>
        <translation>範囲と進行状況</translation>
    </message>
    <message>
        <source>Lenses</source>
        <translation>レンズ</translation>
    </message>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation>メタデータ</translation>
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
        <source>Shape</source>
        <translation>形状</translation>
    </message>
    <message>
        <source>Keystoning</source>
        <translation>台形補正</translation>
    </message>
    <message>
        <source>Horizon</source>
        <translation>水平</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>切り抜き</translation>
    </message>
    <message>
        <source>Distortion</source>
        <translation>歪曲収差</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>グリッド</translation>
    </message>
    <message>
        <source>Guides</source>
        <translation>ガイド</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Loupe</source>
        <translation>ルーペ</translation>
    </message>
    <message>
        <source>Straight lines stay straight, and the tower stops leaning backwards.</source>
        <translation>直線はまっすぐなまま、塔が後ろに傾くこともなくなります。</translation>
    </message>
    <message>
        <source>Tilt-shift</source>
        <translation>ティルトシフト</translation>
    </message>
    <message>
        <source>Blurred at both ends</source>
        <translation>両端をぼかす</translation>
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
        <source>Fit to window</source>
        <translation>ウィンドウに合わせる</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>実寸表示</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>回転</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>左に回転</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>View</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>準備完了</translation>
    </message>
</context>
<context>
    <name>WebServicePage</name>
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
        <source>Request</source>
        <translation>リクエスト</translation>
    </message>
    <message>
        <source>Answer</source>
        <translation>応答</translation>
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
</TS>
