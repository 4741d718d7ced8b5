<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Ticklog</name>
    <message>
        <source>All Timers</source>
        <translation>すべてのタイマー</translation>
    </message>
    <message>
        <source>New Project</source>
        <translation>新規プロジェクト</translation>
    </message>
    <message>
        <source> (Frozen %@)</source>
        <translation> (%@ に凍結)</translation>
    </message>
    <message>
        <source>%ld hour</source>
        <translation>%ld時間</translation>
    </message>
    <message>
        <source>%ld hour-2</source>
        <translation>%ld時間</translation>
    </message>
    <message>
        <source>%ld hours</source>
        <translation>%ld時間</translation>
    </message>
    <message>
        <source>%ld minute</source>
        <translation>%ld分</translation>
    </message>
    <message>
        <source>%ld minute-2</source>
        <translation>%ld分</translation>
    </message>
    <message>
        <source>%ld minutes</source>
        <translation>%ld分</translation>
    </message>
    <message>
        <source>%ld second-0</source>
        <translation>%ld秒</translation>
    </message>
    <message>
        <source>%ld second</source>
        <translation>%ld秒</translation>
    </message>
    <message>
        <source>%ld second-2</source>
        <translation>%ld秒</translation>
    </message>
    <message>
        <source>%ld seconds</source>
        <translation>%ld秒</translation>
    </message>
    <message>
        <source>Database file (reset %@):</source>
        <translation>最後にタイマーを消去した日: %@</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>This Wayland desktop does not tell other programs which window is in front, so no time can be counted.</source>
        <translation>この Wayland デスクトップは最前面のウィンドウを他のプログラムに知らせないため、時間を計測できません。</translation>
    </message>
    <message>
        <source>There is no window system that tells which window is in front.</source>
        <translation>最前面のウィンドウを知らせるウィンドウシステムがありません。</translation>
    </message>
    <message>
        <source>Archive Folder</source>
        <translation>アーカイブフォルダー</translation>
    </message>
    <message>
        <source>Export to CSV</source>
        <translation>CSV にエクスポート</translation>
    </message>
    <message>
        <source>Ticklog Times</source>
        <translation>Ticklog の時間</translation>
    </message>
    <message>
        <source>Replacing a file</source>
        <translation>ファイルの置き換え</translation>
    </message>
    <message>
        <source>A file with this name already exists.</source>
        <translation>この名前のファイルはすでに存在します。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>置き換える</translation>
    </message>
    <message>
        <source>Exporting…</source>
        <translation>エクスポート中…</translation>
    </message>
    <message>
        <source>No Label</source>
        <translation>色なし</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>赤</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>オレンジ</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黄</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>緑</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>青</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>紫</translation>
    </message>
    <message>
        <source>Label:</source>
        <translation>色:</translation>
    </message>
    <message>
        <source>Where Ticklog is found</source>
        <translation>Ticklog の表示場所</translation>
    </message>
    <message>
        <source>Hide Dock Icon</source>
        <translation>タスクバーに表示しない</translation>
    </message>
    <message>
        <source>Show Dock Icon</source>
        <translation>タスクバーに表示</translation>
    </message>
    <message>
        <source>Hide Menubar Item</source>
        <translation>システムトレイに表示しない</translation>
    </message>
    <message>
        <source>Show Menubar Item</source>
        <translation>システムトレイに表示</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>&amp;Import Database…</source>
        <translation>データベースをインポート(&amp;I)…</translation>
    </message>
    <message>
        <source>&amp;Save a Copy As…</source>
        <translation>名前を付けてコピーを保存(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Choose Database Location…</source>
        <translation>データベースの場所を選択(&amp;C)…</translation>
    </message>
    <message>
        <source>&amp;Restore Default Database Location</source>
        <translation>データベースの場所を既定に戻す(&amp;R)</translation>
    </message>
    <message>
        <source>Show &amp;Database in File Manager</source>
        <translation>データベースをファイルマネージャーで表示(&amp;D)</translation>
    </message>
    <message>
        <source>E&amp;xport Shown Timers to CSV…</source>
        <translation>表示中のタイマーを CSV にエクスポート(&amp;X)…</translation>
    </message>
    <message>
        <source>Export &amp;All Timers to CSV…</source>
        <translation>すべてのタイマーを CSV にエクスポート(&amp;A)…</translation>
    </message>
    <message>
        <source>C&amp;lose Window</source>
        <translation>ウィンドウを閉じる(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直す(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>Copy &amp;Summary Time</source>
        <translation>合計時間をコピー(&amp;S)</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>名前を変更(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>すべて選択(&amp;A)</translation>
    </message>
    <message>
        <source>D&amp;eselect All</source>
        <translation>選択を解除(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>検索(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>設定(&amp;P)…</translation>
    </message>
    <message>
        <source>Edit Ru&amp;les…</source>
        <translation>ルールを編集(&amp;L)…</translation>
    </message>
    <message>
        <source>&amp;Expand All</source>
        <translation>すべて展開(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Projects</source>
        <translation>プロジェクト(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;New Project</source>
        <translation>新規プロジェクト(&amp;N)</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>上へ移動(&amp;U)</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>下へ移動(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Freeze All Timers of the Project</source>
        <translation>プロジェクトのすべてのタイマーを凍結(&amp;F)</translation>
    </message>
    <message>
        <source>D&amp;elete Project…</source>
        <translation>プロジェクトを削除(&amp;E)…</translation>
    </message>
    <message>
        <source>&amp;Freeze</source>
        <translation>凍結(&amp;F)</translation>
    </message>
    <message>
        <source>Clear Timers</source>
        <translation>タイマーを消去</translation>
    </message>
    <message>
        <source>&amp;About Ticklog</source>
        <translation>Ticklog について(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Project</source>
        <translation>プロジェクト(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Timer</source>
        <translation>タイマー(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>ツールバー</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>名前を変更</translation>
    </message>
    <message>
        <source>At least</source>
        <translation>最小時間</translation>
    </message>
    <message>
        <source>Leaves out timers that have less time than this</source>
        <translation>これより時間の短いタイマーを表示しません</translation>
    </message>
    <message>
        <source>Copies the sum in words</source>
        <translation>合計を「2時間1分」の形でコピーします</translation>
    </message>
    <message>
        <source>%@ (build %@)</source>
        <translation>%@ (ビルド %@)</translation>
    </message>
    <message>
        <source>Are you sure you wish to clear the currently visible timers?</source>
        <translation>すべてのタイマーを消去しますか? 時間と行が取り除かれます。</translation>
    </message>
    <message>
        <source>Set storage database location.</source>
        <translation>データベースの場所を選択</translation>
    </message>
    <message>
        <source>The database could not be copied.</source>
        <translation>データベースをコピーできませんでした。</translation>
    </message>
    <message>
        <source>No timer matches the search.</source>
        <translation>検索に一致するタイマーはありません。</translation>
    </message>
    <message>
        <source>This project is empty. Drag timers from “All Timers” onto it.</source>
        <translation>このプロジェクトは空です。「すべてのタイマー」からタイマーをドラッグしてください。</translation>
    </message>
    <message>
        <source>No timer reaches the minimum time.</source>
        <translation>最小時間に達しているタイマーはありません。</translation>
    </message>
    <message>
        <source>Press Start and carry on working. Your programs will appear here.</source>
        <translation>「開始」を押して作業を続けてください。使用したプログラムがここに表示されます。</translation>
    </message>
    <message>
        <source>Replacing timers</source>
        <translation>タイマーの置き換え</translation>
    </message>
    <message>
        <source>Importing timers will replace all current timers. Your current timers will be saved in a backup file next to the Ticklog database.</source>
        <translation>インポートすると、現在のタイマーはすべて置き換えられます。現在のタイマーは Ticklog データベースと同じ場所のバックアップファイルに保存されます。</translation>
    </message>
    <message>
        <source>Import Database</source>
        <translation>データベースをインポート</translation>
    </message>
    <message>
        <source>Save a Copy As</source>
        <translation>名前を付けてコピーを保存</translation>
    </message>
    <message>
        <source>The copy could not be saved.</source>
        <translation>コピーを保存できませんでした。</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>合計</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>プロジェクト</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>選択項目</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>検索結果</translation>
    </message>
    <message>
        <source>Found in selection</source>
        <translation>選択項目内の検索結果</translation>
    </message>
    <message>
        <source>total
%@</source>
        <translation>合計
%@</translation>
    </message>
    <message>
        <source>project
%@</source>
        <translation>プロジェクト
%@</translation>
    </message>
    <message>
        <source>selected
%@</source>
        <translation>選択項目
%@</translation>
    </message>
    <message>
        <source>found
%@</source>
        <translation>検索結果
%@</translation>
    </message>
    <message>
        <source>frozen</source>
        <translation>凍結</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>プログラム</translation>
    </message>
    <message>
        <source>Time Spent</source>
        <translation>使用時間</translation>
    </message>
    <message>
        <source>&amp;Block from the list</source>
        <translation>レポートから除く(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>名前を変更(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;New name:</source>
        <translation>新しい名前(&amp;N):</translation>
    </message>
    <message>
        <source>&amp;Categories:</source>
        <translation>カテゴリ(&amp;C):</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>ルール</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>カテゴリ</translation>
    </message>
    <message>
        <source>Press comma or Enter to add; press Delete to remove.</source>
        <translation>コンマまたは Enter で追加、Delete で取り除きます。</translation>
    </message>
    <message>
        <source>&amp;Application:</source>
        <translation>プログラム(&amp;A):</translation>
    </message>
    <message>
        <source>&amp;Archive and clear all timers by schedule</source>
        <translation>予定した日時にすべてのタイマーをアーカイブして消去する(&amp;A)</translation>
    </message>
    <message>
        <source>At the chosen time all timers are saved to a file named after the day, and start again from zero.</source>
        <translation>指定した時刻に、すべてのタイマーを日付を名前とするファイルに保存し、ゼロから計測し直します。</translation>
    </message>
    <message>
        <source>Data&amp;base:</source>
        <translation>データベース(&amp;B):</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>選択(&amp;C)…</translation>
    </message>
    <message>
        <source>&amp;Restore Default</source>
        <translation>既定に戻す(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Show in File Manager</source>
        <translation>ファイルマネージャーで表示(&amp;S)</translation>
    </message>
    <message>
        <source>CSV table</source>
        <translation>CSV 表</translation>
    </message>
    <message>
        <source>Ticklog database</source>
        <translation>Ticklog データベース</translation>
    </message>
    <message>
        <source>CSV table and Ticklog database</source>
        <translation>CSV 表と Ticklog データベース</translation>
    </message>
    <message>
        <source>Weekdays of the archive</source>
        <translation>アーカイブする曜日</translation>
    </message>
    <message>
        <source>C&amp;hoose…</source>
        <translation>選択(&amp;H)…</translation>
    </message>
    <message>
        <source>&amp;Time of day:</source>
        <translation>時刻(&amp;T):</translation>
    </message>
    <message>
        <source>&amp;Weekdays:</source>
        <translation>曜日(&amp;W):</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>形式(&amp;F):</translation>
    </message>
    <message>
        <source>F&amp;older:</source>
        <translation>フォルダー(&amp;O):</translation>
    </message>
    <message>
        <source>No day is chosen: nothing is archived.</source>
        <translation>曜日が選ばれていません: アーカイブされません。</translation>
    </message>
    <message>
        <source>Archived on: </source>
        <translation>アーカイブする曜日: </translation>
    </message>
    <message>
        <source>Task bar and system tray</source>
        <translation>タスクバーとシステムトレイ</translation>
    </message>
    <message>
        <source>Task bar</source>
        <translation>タスクバー</translation>
    </message>
    <message>
        <source>System tray</source>
        <translation>システムトレイ</translation>
    </message>
    <message>
        <source>Include &amp;idle time</source>
        <translation>アイドル時間を含める(&amp;I)</translation>
    </message>
    <message>
        <source>Include time spent in &amp;Ticklog</source>
        <translation>&amp;Ticklog の使用時間を含める</translation>
    </message>
    <message>
        <source>Include &amp;seconds</source>
        <translation>秒を含める(&amp;S)</translation>
    </message>
    <message>
        <source>Total:</source>
        <translation>合計:</translation>
    </message>
    <message>
        <source>Copied times:</source>
        <translation>コピーした時間:</translation>
    </message>
    <message>
        <source>Include idle time in the total</source>
        <translation>アイドル時間を合計に含める</translation>
    </message>
    <message>
        <source>Include time spent in Ticklog in the total</source>
        <translation>Ticklog の使用時間を合計に含める</translation>
    </message>
    <message>
        <source>Include seconds in copied times</source>
        <translation>コピーした時間に秒を含める</translation>
    </message>
    <message>
        <source>Start Ticklog when I &amp;log in</source>
        <translation>ログイン時に Ticklog を起動する(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Count time without input as idle</source>
        <translation>操作のない時間をアイドルとして数える(&amp;C)</translation>
    </message>
    <message>
        <source> min</source>
        <translation> 分</translation>
    </message>
    <message>
        <source>Minutes without input until time counts as idle</source>
        <translation>アイドルとして数えるまでの操作のない時間 (分)</translation>
    </message>
    <message>
        <source>Idle time:</source>
        <translation>アイドル:</translation>
    </message>
    <message>
        <source>&amp;After:</source>
        <translation>アイドルまで(&amp;A):</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>編集(&amp;E)…</translation>
    </message>
    <message>
        <source>D&amp;uplicate…</source>
        <translation>複製(&amp;U)…</translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation>削除(&amp;D)…</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>ルール</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>追加(&amp;A)…</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>アーカイブ</translation>
    </message>
    <message>
        <source>Delete the rule?</source>
        <translation>ルールを削除しますか?</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>残す</translation>
    </message>
    <message>
        <source>Category. Press Delete to remove it.</source>
        <translation>カテゴリ。Delete キーで取り除きます。</translation>
    </message>
    <message>
        <source>For Ticklog to function you must grant it access to your computer.</source>
        <translation>Ticklog にはデスクトップのアクセシビリティサービスが必要です。</translation>
    </message>
    <message>
        <source>Follow these simple steps and Ticklog will be running in no time.</source>
        <translation>次の手順に従うと、Ticklog で計測できます。</translation>
    </message>
    <message>
        <source>Launch the Security &amp; Privacy panel in the System Preferences.</source>
        <translation>デスクトップの設定を開きます。</translation>
    </message>
    <message>
        <source>Select the Privacy tab and unlock the padlock to allow settings changes.</source>
        <translation>アクセシビリティのページに移動します。</translation>
    </message>
    <message>
        <source>Select the Accessibility group and drag Ticklog into the list on the right.</source>
        <translation>支援プログラム用のサービスを有効にします。</translation>
    </message>
    <message>
        <source>Finally tick the checkbox associated with Ticklog and restart Ticklog.</source>
        <translation>Ticklog を再起動します。</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>再起動</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>現在の手順</translation>
    </message>
    <message>
        <source>Ticklog monitors the active time spent in each application. To enable this tracking you must give Ticklog permission to gather this data from the system.</source>
        <translation>Ticklog は各プログラムの使用時間を計測します。そのためには、デスクトップに問い合わせる許可が必要です。</translation>
    </message>
    <message>
        <source>Security protections built into OS X prevent monitoring the status of other applications without user authorization. In order to protect your privacy, this action will authorize Ticklog to track your applications while maintaining the normal system wide security precautions.</source>
        <translation>デスクトップはプライバシーを守るため、許可なしに他のプログラムを観察させません。この操作は Ticklog に許可を与えます。他の保護はそのままです。</translation>
    </message>
    <message>
        <source>Authorize Ticklog</source>
        <translation>Ticklog を許可</translation>
    </message>
    <message>
        <source>Cancel Start</source>
        <translation>開始をキャンセル</translation>
    </message>
    <message>
        <source>Please choose the &apos;Enable access for assistive devices.&apos; checkbox in the Secuirty &gt; Privacy &gt; Accessibility system preferences.</source>
        <translation>デスクトップの設定でアクセシビリティを有効にしてください。</translation>
    </message>
    <message>
        <source>Please choose the &apos;Enable access for assistive devices.&apos; checkbox in the Universal Access system preferences.</source>
        <translation>デスクトップの設定でアクセシビリティを有効にしてください。</translation>
    </message>
    <message>
        <source>An error was encountered.</source>
        <translation>エラーが発生しました。</translation>
    </message>
    <message>
        <source>Open Preference Panel</source>
        <translation>設定を開く</translation>
    </message>
    <message>
        <source>Ticklog is counting</source>
        <translation>Ticklog は計測中です</translation>
    </message>
    <message>
        <source>Ticklog is paused</source>
        <translation>Ticklog は一時停止中です</translation>
    </message>
    <message>
        <source>Free software under the MIT licence.</source>
        <translation>MIT ライセンスの自由ソフトウェアです。</translation>
    </message>
    <message>
        <source>There is no system tray.</source>
        <translation>システムトレイがありません。</translation>
    </message>
    <message>
        <source>Ticklog therefore stays in the task bar, and its menu is in the main window. It moves to the tray as soon as there is one.</source>
        <translation>そのため Ticklog はタスクバーに残り、メニューはメインウィンドウに表示されます。システムトレイが使えるようになると、そちらに移ります。</translation>
    </message>
    <message>
        <source>Ticklog databases</source>
        <translation>Ticklog データベース</translation>
    </message>
    <message>
        <source>CSV files</source>
        <translation>CSV ファイル</translation>
    </message>
    <message>
        <source>Application Times</source>
        <translation>プログラムの時間</translation>
    </message>
    <message>
        <source>Show Time Window</source>
        <translation>Ticklog を表示</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>Ticklog について</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>About Ticklog</source>
        <translation>Ticklog について</translation>
    </message>
    <message>
        <source>Delete Project</source>
        <translation>プロジェクトを削除</translation>
    </message>
    <message>
        <source>Add to Project</source>
        <translation>プロジェクトに追加</translation>
    </message>
    <message>
        <source>Rename Project</source>
        <translation>プロジェクトの名前を変更</translation>
    </message>
    <message>
        <source>The timer set &quot;%@&quot; will be deleted.</source>
        <translation>プロジェクト「%@」を削除します。</translation>
    </message>
    <message>
        <source>Delete selected timer set?</source>
        <translation>選択したプロジェクトを削除しますか?</translation>
    </message>
    <message>
        <source>Move Project</source>
        <translation>プロジェクトを移動</translation>
    </message>
    <message>
        <source>Remove from Project</source>
        <translation>プロジェクトから取り除く</translation>
    </message>
    <message>
        <source>Label Project</source>
        <translation>プロジェクトの色を変更</translation>
    </message>
    <message>
        <source>Copy Project</source>
        <translation>プロジェクトをコピー</translation>
    </message>
    <message>
        <source>Ticklog cannot see other programs’ windows</source>
        <translation>Ticklog から他のプログラムのウィンドウが見えません</translation>
    </message>
    <message>
        <source>To count the time spent in each window, it needs the accessibility services of the desktop. Start the timer again when they are turned on.</source>
        <translation>ウィンドウごとの時間を計測するには、デスクトップのアクセシビリティサービスが必要です。有効にしてから、タイマーをもう一度開始してください。</translation>
    </message>
    <message>
        <source>Turn On</source>
        <translation>有効にする</translation>
    </message>
    <message>
        <source>Delete &amp;Without Asking</source>
        <translation>確認せずに削除(&amp;W)</translation>
    </message>
    <message>
        <source>C&amp;ollapse All</source>
        <translation>すべて折りたたむ(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Rename Project</source>
        <translation>プロジェクトの名前を変更(&amp;R)</translation>
    </message>
    <message>
        <source>Sho&amp;w Ticklog in:</source>
        <translation>Ticklog の表示場所(&amp;W):</translation>
    </message>
    <message>
        <source>Ticklog cannot be started at login.</source>
        <translation>ログイン時に Ticklog を起動できません。</translation>
    </message>
    <message>
        <source>Ticklog is still started at login.</source>
        <translation>Ticklog は引き続きログイン時に起動します。</translation>
    </message>
    <message>
        <source>Plasma tells only installed programs which window is in front. Install Ticklog, and start it from the menu.</source>
        <translation>Plasma は、インストールされたプログラムにのみ最前面のウィンドウを知らせます。Ticklog をインストールし、メニューから起動してください。</translation>
    </message>
    <message>
        <source>This Wayland desktop no longer tells other programs which window is in front.</source>
        <translation>この Wayland デスクトップは、最前面のウィンドウを他のプログラムに知らせなくなりました。</translation>
    </message>
    <message>
        <source>GNOME Shell tells which window is in front only to its extensions, and the one that belongs to Ticklog is not running.</source>
        <translation>GNOME Shell は最前面のウィンドウを拡張機能にのみ知らせますが、Ticklog の拡張機能が動作していません。</translation>
    </message>
    <message>
        <source>GNOME Shell tells this only to its extensions. The one that comes with Ticklog tells Ticklog, and no other program, which windows are on the screen. Without it Ticklog sees only some programs.</source>
        <translation>GNOME Shell はこれを拡張機能にのみ知らせます。Ticklog に付属する拡張機能は、画面上のウィンドウを Ticklog だけに知らせます。これがないと Ticklog は一部のプログラムしか認識できません。</translation>
    </message>
    <message>
        <source>Ticklog needs an extension of GNOME Shell to see which window is in front.</source>
        <translation>最前面のウィンドウを知るには、GNOME Shell の拡張機能が必要です。</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>後で</translation>
    </message>
    <message>
        <source>Don&apos;t Ask Again</source>
        <translation>今後確認しない</translation>
    </message>
    <message>
        <source>GNOME Shell finds new extensions at login: log out and in again once it is installed.</source>
        <translation>GNOME Shell はログイン時に新しい拡張機能を検出します。インストール後、一度ログアウトしてからログインし直してください。</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>インストール</translation>
    </message>
    <message>
        <source>The extension could not be installed.</source>
        <translation>拡張機能をインストールできませんでした。</translation>
    </message>
    <message>
        <source>Until then, Ticklog sees only programs that tell assistive programs about their windows; all other time counts as “Desktop”.</source>
        <translation>それまでは、支援プログラムにウィンドウを知らせるプログラムだけが計測され、それ以外の時間はすべて「デスクトップ」に数えられます。</translation>
    </message>
    <message>
        <source>GNOME Shell’s switch for all extensions is off. It is turned on as well, and with it the other extensions that are chosen there.</source>
        <translation>GNOME Shell のすべての拡張機能のスイッチがオフになっています。これも有効にされ、そこで選ばれている他の拡張機能も有効になります。</translation>
    </message>
    <message>
        <source>GNOME Shell has not turned the extension on.</source>
        <translation>GNOME Shell は拡張機能を有効にしませんでした。</translation>
    </message>
    <message>
        <source>Turn it on in the program “Extensions”, together with the switch for all extensions. If you cannot, the administrator of this computer does not allow it.</source>
        <translation>「拡張機能」プログラムで、すべての拡張機能のスイッチとともに有効にしてください。できない場合は、このコンピューターの管理者が許可していません。</translation>
    </message>
    <message>
        <source>Set Up...</source>
        <translation>設定する…</translation>
    </message>
    <message>
        <source>Why Are Windows Not Counted?</source>
        <translation>ウィンドウが計測されない理由</translation>
    </message>
    <message>
        <source>GNOME Shell does not tell programs in a sandbox which window is in front. Installed outside of one, Ticklog can be told.</source>
        <translation>GNOME Shell は、サンドボックス内のプログラムには最前面のウィンドウを知らせません。サンドボックスの外にインストールすると、Ticklog はそれを知ることができます。</translation>
    </message>
    <message>
        <source>Ticklog runs in a sandbox and cannot change what starts with your session. The desktop’s settings can.</source>
        <translation>Ticklog はサンドボックス内で動作しているため、セッションの開始時に起動するものを変更できません。デスクトップの設定で変更できます。</translation>
    </message>
    <message>
        <source>The desktop has stopped responding. Until it responds, no window’s time is counted.</source>
        <translation>デスクトップが応答しなくなりました。応答するまで、どのウィンドウの時間も計測されません。</translation>
    </message>
    <message>
        <source>Ticklog’s extension does not support GNOME Shell %@ yet.</source>
        <translation>Ticklog の拡張機能は GNOME Shell %@ にまだ対応していません。</translation>
    </message>
    <message>
        <source>Ticklog was started without knowing of the Wayland desktop, so it sees only programs that run through the X server. Start Ticklog from the desktop’s menu.</source>
        <translation>Ticklog は Wayland デスクトップの情報なしで起動されたため、X サーバーを通して動くプログラムしか認識できません。デスクトップのメニューから Ticklog を起動してください。</translation>
    </message>
    <message>
        <source>Until it runs, no window’s time is counted.</source>
        <translation>動作するまで、どのウィンドウの時間も計測されません。</translation>
    </message>
    <message>
        <source>Until it runs, Ticklog sees only programs that tell assistive programs about their windows; all other time counts as “Desktop”.</source>
        <translation>動作するまでは、支援プログラムにウィンドウを知らせるプログラムだけが計測され、それ以外の時間はすべて「デスクトップ」に数えられます。</translation>
    </message>
    <message>
        <source>Freeze</source>
        <translation>凍結</translation>
    </message>
    <message>
        <source>“%@” is in a folder where others may write: they could replace it.</source>
        <translation>「%@」は他の人も書き込めるフォルダーにあるため、差し替えられる可能性があります。</translation>
    </message>
    <message>
        <source>“%@” cannot be saved: its folder is missing.</source>
        <translation>「%@」を保存できません。フォルダーがありません。</translation>
    </message>
    <message>
        <source>“%@” cannot be saved: its folder is read-only.</source>
        <translation>「%@」を保存できません。フォルダーが読み取り専用です。</translation>
    </message>
    <message>
        <source>“%@” cannot be saved: the disk is full.</source>
        <translation>「%@」を保存できません。ディスクがいっぱいです。</translation>
    </message>
    <message>
        <source>“%@” cannot be saved.</source>
        <translation>「%@」を保存できません。</translation>
    </message>
    <message>
        <source>“%@” could not be read. It was set aside, and Ticklog has started without it.</source>
        <translation>「%@」を読み込めませんでした。ファイルは別名で残し、Ticklog はそれなしで開始しました。</translation>
    </message>
    <message>
        <source>Some entries of “%@” are damaged and were left out. The damaged file is kept beside it.</source>
        <translation>「%@」の一部の項目は破損していたため除外されました。破損したファイルは同じ場所に残されています。</translation>
    </message>
    <message>
        <source>“%@” could not be read. Ticklog continues with the last settings that it kept.</source>
        <translation>「%@」を読み込めませんでした。Ticklog は最後に保存しておいた設定を使います。</translation>
    </message>
    <message>
        <source>The archive “%@” could not be moved to its folder. It lies beside the database.</source>
        <translation>アーカイブ「%@」をフォルダーに移せませんでした。データベースの隣にあります。</translation>
    </message>
    <message>
        <source>The archive “%@” could not be written anywhere.</source>
        <translation>アーカイブ「%@」はどこにも書き込めませんでした。</translation>
    </message>
    <message>
        <source>The database “%@” is missing. What is counted until it is back will be added to it.</source>
        <translation>データベース「%@」が見つかりません。戻るまでに計測した時間は、戻ったときに加えられます。</translation>
    </message>
    <message>
        <source>No backup could be made, so nothing was changed.</source>
        <translation>バックアップを作成できなかったため、何も変更していません。</translation>
    </message>
    <message>
        <source>The timers could not be imported.</source>
        <translation>タイマーをインポートできませんでした。</translation>
    </message>
    <message>
        <source>Understood</source>
        <translation>了解</translation>
    </message>
    <message>
        <source>Export &amp;Project…</source>
        <translation>プロジェクトをエクスポート(&amp;P)…</translation>
    </message>
    <message>
        <source>No timer that matches the search reaches the minimum time.</source>
        <translation>検索に一致するタイマーで、最小時間に達しているものはありません。</translation>
    </message>
    <message>
        <source>Export All Timers to CSV, Narrowed by the Search</source>
        <translation>すべてのタイマーを検索で絞り込んで CSV にエクスポート</translation>
    </message>
    <message>
        <source>Export All Timers to CSV</source>
        <translation>すべてのタイマーを CSV にエクスポート</translation>
    </message>
    <message>
        <source>Export Project to CSV</source>
        <translation>プロジェクトを CSV にエクスポート</translation>
    </message>
    <message>
        <source>Ticklog keeps running in the task bar.</source>
        <translation>Ticklog はタスクバーで動作を続けます。</translation>
    </message>
    <message>
        <source>There is no tray icon that could bring a closed window back, so closing the window minimizes it and Ticklog keeps running. “Quit” ends Ticklog.</source>
        <translation>閉じたウィンドウに戻るためのトレイアイコンがありません。そのため閉じると最小化され、Ticklog は動作を続けます。終了するには「終了」を選びます。</translation>
    </message>
    <message>
        <source>There are more timers than one database can hold: %@ at the most.</source>
        <translation>1つのデータベースに保存できる数（最大 %@）を超えるタイマーがあります。</translation>
    </message>
    <message>
        <source>Importing…</source>
        <translation>インポート中…</translation>
    </message>
    <message>
        <source>This Wayland desktop does not tell other programs which window is in front. Ticklog sees only programs that tell assistive programs about their windows; all other time counts as “Desktop”.</source>
        <translation>この Wayland デスクトップは最前面のウィンドウを他のプログラムに知らせません。支援プログラムにウィンドウを知らせるプログラムだけが計測され、それ以外の時間はすべて「デスクトップ」に数えられます。</translation>
    </message>
    <message>
        <source>“%@” was written by a newer version. It is left alone, and nothing is added to it.</source>
        <translation>「%@」は新しいバージョンで書き込まれています。そのまま残し、何も追加しません。</translation>
    </message>
    <message>
        <source>No history is kept.</source>
        <translation>履歴は残されていません。</translation>
    </message>
    <message>
        <source>until</source>
        <translation>から</translation>
    </message>
    <message>
        <source>&amp;Forget…</source>
        <translation>履歴から消去(&amp;F)…</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>Any title</source>
        <translation>すべてのタイトル</translation>
    </message>
    <message>
        <source>At any time</source>
        <translation>全期間</translation>
    </message>
    <message>
        <source>On the day</source>
        <translation>その日</translation>
    </message>
    <message>
        <source>From</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>End</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>&amp;Program:</source>
        <translation>プログラム(&amp;P):</translation>
    </message>
    <message>
        <source>&amp;Title contains:</source>
        <translation>タイトルに含む(&amp;T):</translation>
    </message>
    <message>
        <source>&amp;When:</source>
        <translation>時期(&amp;W):</translation>
    </message>
    <message>
        <source>The history forgets it for good. Timers keep their names and times; to remove those, delete their rows.</source>
        <translation>履歴からは永久に消えます。タイマーの名前と時間は残ります。消すには行を削除してください。</translation>
    </message>
    <message>
        <source>What would be forgotten</source>
        <translation>消去されるもの</translation>
    </message>
    <message>
        <source>All programs</source>
        <translation>すべてのプログラム</translation>
    </message>
    <message>
        <source>The history cannot be read.</source>
        <translation>履歴を読み込めません。</translation>
    </message>
    <message>
        <source>Forget this for good?</source>
        <translation>永久に消去しますか?</translation>
    </message>
    <message>
        <source>It is removed from the file at once. This cannot be undone.</source>
        <translation>ファイルからすぐに取り除かれます。取り消すことはできません。</translation>
    </message>
    <message>
        <source>It is being forgotten…</source>
        <translation>消去しています…</translation>
    </message>
    <message>
        <source>It is forgotten.</source>
        <translation>消去しました。</translation>
    </message>
    <message>
        <source>It is not forgotten yet, because the history cannot be saved at the moment. Ticklog keeps trying.</source>
        <translation>現在、履歴を保存できないため、まだ消去されていません。Ticklog は引き続き試みます。</translation>
    </message>
    <message>
        <source>Forever</source>
        <translation>ずっと</translation>
    </message>
    <message>
        <source>For five years</source>
        <translation>5年間</translation>
    </message>
    <message>
        <source>For a year</source>
        <translation>1年間</translation>
    </message>
    <message>
        <source>For 90 days</source>
        <translation>90日間</translation>
    </message>
    <message>
        <source>Not at all</source>
        <translation>残さない</translation>
    </message>
    <message>
        <source>The history records which title was in front, and when. It stays on this machine, in a file that only you can read, and lets the timers lose no more than 15 seconds in a crash.</source>
        <translation>履歴は、どのタイトルがいつ前面にあったかを記録します。このコンピューターの、自分だけが読めるファイルに残り、クラッシュしてもタイマーが失うのは15秒までになります。</translation>
    </message>
    <message>
        <source>&amp;Keep the history:</source>
        <translation>履歴を残す期間(&amp;K):</translation>
    </message>
    <message>
        <source>A &amp;day begins at:</source>
        <translation>一日の始まり(&amp;D):</translation>
    </message>
    <message>
        <source>For %@ days</source>
        <translation>%@日間</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>何も見つかりません。</translation>
    </message>
    <message>
        <source>Titles: %@</source>
        <translation>タイトル: %@</translation>
    </message>
    <message>
        <source>Time spent: %@</source>
        <translation>使用時間: %@</translation>
    </message>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>Stop keeping a history?</source>
        <translation>履歴を残さないようにしますか?</translation>
    </message>
    <message>
        <source>Forget what is older?</source>
        <translation>それより古いものを消去しますか?</translation>
    </message>
    <message>
        <source>Its file is removed at once. This cannot be undone. Timers keep their times, but a crash may cost them the last 15 minutes.</source>
        <translation>ファイルはすぐに削除され、取り消すことはできません。タイマーの時間は残りますが、クラッシュすると最後の15分を失うことがあります。</translation>
    </message>
    <message>
        <source>Titles</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Rule for Titles</source>
        <translation>タイトルのルール</translation>
    </message>
    <message>
        <source>How the title is found</source>
        <translation>タイトルの照合方法</translation>
    </message>
    <message>
        <source>contains</source>
        <translation>次を含む</translation>
    </message>
    <message>
        <source>matches the expression</source>
        <translation>次の式に一致</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>&amp;Program contains:</source>
        <translation>プログラムに含む(&amp;P):</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>タイトル(&amp;T):</translation>
    </message>
    <message>
        <source>&amp;Effect:</source>
        <translation>効果(&amp;E):</translation>
    </message>
    <message>
        <source>&amp;New text:</source>
        <translation>新しい文字列(&amp;N):</translation>
    </message>
    <message>
        <source>This expression cannot be read: %@</source>
        <translation>この式は解釈できません: %@</translation>
    </message>
    <message>
        <source>This expression is wrong: %@</source>
        <translation>この式は正しくありません: %@</translation>
    </message>
    <message>
        <source>Private windows of browsers</source>
        <translation>ブラウザーのプライベートウィンドウ</translation>
    </message>
    <message>
        <source>Keep the title</source>
        <translation>タイトルを残す</translation>
    </message>
    <message>
        <source>Replace the title</source>
        <translation>タイトルを置き換える</translation>
    </message>
    <message>
        <source>Count as “Private”</source>
        <translation>「プライベート」として数える</translation>
    </message>
    <message>
        <source>Leave the title out</source>
        <translation>タイトルを除く</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>効果</translation>
    </message>
    <message>
        <source>Last 7 Days</source>
        <translation>過去7日間</translation>
    </message>
    <message>
        <source>Rules for titles</source>
        <translation>タイトルのルール</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>上へ(&amp;U)</translation>
    </message>
    <message>
        <source>Do&amp;wn</source>
        <translation>下へ(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Matching Titles…</source>
        <translation>該当タイトル(&amp;T)…</translation>
    </message>
    <message>
        <source>Apply to the &amp;Past…</source>
        <translation>過去に適用(&amp;P)…</translation>
    </message>
    <message>
        <source>What these rules hide is never written. The first rule that matches decides.</source>
        <translation>これらのルールが隠すものは書き込まれません。最初に一致したルールが決めます。</translation>
    </message>
    <message>
        <source>Titles of the Last 7 Days</source>
        <translation>過去7日間のタイトル</translation>
    </message>
    <message>
        <source>The rules match nothing in the past.</source>
        <translation>過去にルールに一致するものはありません。</translation>
    </message>
    <message>
        <source>Timers: %@</source>
        <translation>タイマー: %@</translation>
    </message>
    <message>
        <source>Apply the rules to the past?</source>
        <translation>ルールを過去にも適用しますか?</translation>
    </message>
    <message>
        <source>What they hide is removed for good from the history, the timers and the projects. Neither this nor any earlier step can be undone. Archives and backups stay as they are.</source>
        <translation>隠されるものは履歴、タイマー、プロジェクトから永久に取り除かれます。これもそれ以前の操作も取り消せません。アーカイブとバックアップはそのまま残ります。</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Pa&amp;tterns…</source>
        <translation>パターン(&amp;T)…</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>取り除く(&amp;R)</translation>
    </message>
    <message>
        <source>Patterns</source>
        <translation>パターン</translation>
    </message>
    <message>
        <source>Program contains</source>
        <translation>プログラムに含む</translation>
    </message>
    <message>
        <source>Title contains</source>
        <translation>タイトルに含む</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>正規表現</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>追加(&amp;A)</translation>
    </message>
    <message>
        <source>Whatever matches belongs to the project in the history and in reports, past time included. The project’s own timers stay as they are.</source>
        <translation>一致するものは、過去のものも含めて、履歴とレポートではプロジェクトに属します。プロジェクトのタイマーはそのままです。</translation>
    </message>
    <message>
        <source>The title is a regular expression</source>
        <translation>タイトルは正規表現です</translation>
    </message>
    <message>
        <source>Change Patterns</source>
        <translation>パターンを変更</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>戻る(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>進む(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Today</source>
        <translation>今日(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Day</source>
        <translation>日(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Week</source>
        <translation>週(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Month</source>
        <translation>月(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Year</source>
        <translation>年(&amp;Y)</translation>
    </message>
    <message>
        <source>F&amp;rom – To…</source>
        <translation>期間(&amp;R)…</translation>
    </message>
    <message>
        <source>By &amp;Program</source>
        <translation>プログラム別(&amp;P)</translation>
    </message>
    <message>
        <source>By Pro&amp;ject</source>
        <translation>プロジェクト別(&amp;J)</translation>
    </message>
    <message>
        <source>Nothing here reaches the minimum time.</source>
        <translation>最小時間に達するものはありません。</translation>
    </message>
    <message>
        <source>Nothing in this time matches the search.</source>
        <translation>この期間に検索と一致するものはありません。</translation>
    </message>
    <message>
        <source>No work for this project in this time.</source>
        <translation>この期間にこのプロジェクトの作業はありません。</translation>
    </message>
    <message>
        <source>This time is still to come.</source>
        <translation>この期間はまだ先です。</translation>
    </message>
    <message>
        <source>No work was recorded in this time.</source>
        <translation>この期間に記録された作業はありません。</translation>
    </message>
    <message>
        <source>Ticklog History</source>
        <translation>Ticklog の履歴</translation>
    </message>
    <message>
        <source>The history could not be exported.</source>
        <translation>履歴をエクスポートできませんでした。</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>割合</translation>
    </message>
    <message>
        <source>Opens a calendar</source>
        <translation>カレンダーを開きます</translation>
    </message>
    <message>
        <source>To</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>&amp;Timers</source>
        <translation>タイマー(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>履歴(&amp;H)</translation>
    </message>
    <message>
        <source>H&amp;istory</source>
        <translation>履歴(&amp;I)</translation>
    </message>
    <message>
        <source>The day</source>
        <translation>この日</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>プログラム</translation>
    </message>
    <message>
        <source>Projects</source>
        <translation>プロジェクト</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>アイドル</translation>
    </message>
    <message>
        <source>Project %@</source>
        <translation>プロジェクト %@</translation>
    </message>
    <message>
        <source>%@ more</source>
        <translation>ほか %@ 件</translation>
    </message>
    <message>
        <source>The period</source>
        <translation>この期間</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>平均</translation>
    </message>
    <message>
        <source>Week of %@</source>
        <translation>%@の週</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1秒</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1分</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1時間</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1時間%2分</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1から%2</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Time &amp;Sheet…</source>
        <translation>タイムシート(&amp;S)…</translation>
    </message>
    <message>
        <source>No Project</source>
        <translation>プロジェクトなし</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>合計</translation>
    </message>
    <message>
        <source>Time Sheet</source>
        <translation>タイムシート</translation>
    </message>
    <message>
        <source>Measured: %@</source>
        <translation>計測値: %@</translation>
    </message>
    <message>
        <source>Rounding</source>
        <translation>丸め</translation>
    </message>
    <message>
        <source>No Rounding</source>
        <translation>丸めない</translation>
    </message>
    <message>
        <source>6 Minutes</source>
        <translation>6分</translation>
    </message>
    <message>
        <source>15 Minutes</source>
        <translation>15分</translation>
    </message>
    <message>
        <source>30 Minutes</source>
        <translation>30分</translation>
    </message>
    <message>
        <source>Direction of rounding</source>
        <translation>丸めの方向</translation>
    </message>
    <message>
        <source>To the Nearest</source>
        <translation>四捨五入</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>切り上げ</translation>
    </message>
    <message>
        <source>What is rounded</source>
        <translation>丸める対象</translation>
    </message>
    <message>
        <source>Each Cell</source>
        <translation>セルごと</translation>
    </message>
    <message>
        <source>Each Day</source>
        <translation>日ごと</translation>
    </message>
    <message>
        <source>Form of times</source>
        <translation>時間の表記</translation>
    </message>
    <message>
        <source>Hours and Minutes</source>
        <translation>時間と分</translation>
    </message>
    <message>
        <source>Decimal Hours</source>
        <translation>小数の時間</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>メモ</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>名前:</translation>
    </message>
    <message>
        <source>Notes:</source>
        <translation>メモ:</translation>
    </message>
    <message>
        <source>Save as C&amp;SV…</source>
        <translation>CSV で保存(&amp;S)…</translation>
    </message>
    <message>
        <source>Save as P&amp;DF…</source>
        <translation>PDF で保存(&amp;D)…</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>印刷(&amp;P)…</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>閉じる(&amp;L)</translation>
    </message>
    <message>
        <source>Save the Time Sheet as CSV</source>
        <translation>タイムシートを CSV で保存</translation>
    </message>
    <message>
        <source>The time sheet could not be saved.</source>
        <translation>タイムシートを保存できませんでした。</translation>
    </message>
    <message>
        <source>Save the Time Sheet as PDF</source>
        <translation>タイムシートを PDF で保存</translation>
    </message>
    <message>
        <source>Today: %@</source>
        <translation>今日: %@</translation>
    </message>
    <message>
        <source>Pause For</source>
        <translation>一時停止の長さ</translation>
    </message>
    <message>
        <source>An Hour</source>
        <translation>1時間</translation>
    </message>
    <message>
        <source>Until Tomorrow</source>
        <translation>明日まで</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>マニュアル(&amp;M)</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>マニュアル</translation>
    </message>
    <message>
        <source>Chapters</source>
        <translation>章</translation>
    </message>
    <message>
        <source>&amp;Give to Project</source>
        <translation>プロジェクトに割り当てる(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Name This Time…</source>
        <translation>この時間に名前を付ける(&amp;N)…</translation>
    </message>
    <message>
        <source>Boo&amp;k Time…</source>
        <translation>時間を記入(&amp;K)…</translation>
    </message>
    <message>
        <source>Forg&amp;et This Time…</source>
        <translation>この時間を消去(&amp;E)…</translation>
    </message>
    <message>
        <source>Booked by hand on %1</source>
        <translation>%1に手動で記入</translation>
    </message>
    <message>
        <source>Given to its project by hand on %1</source>
        <translation>%1に手動でプロジェクトに割り当て</translation>
    </message>
    <message>
        <source>Named by hand on %1, before: %2</source>
        <translation>%1に手動で命名（以前: %2）</translation>
    </message>
    <message>
        <source>By Hand</source>
        <translation>手動</translation>
    </message>
    <message>
        <source>&amp;No Project</source>
        <translation>プロジェクトなし(&amp;N)</translation>
    </message>
    <message>
        <source>Give to Project</source>
        <translation>プロジェクトに割り当てる</translation>
    </message>
    <message>
        <source>Book</source>
        <translation>記入</translation>
    </message>
    <message>
        <source>Boo&amp;k</source>
        <translation>記入(&amp;B)</translation>
    </message>
    <message>
        <source>Book Time</source>
        <translation>時間を記入</translation>
    </message>
    <message>
        <source>&amp;Begin:</source>
        <translation>開始(&amp;E):</translation>
    </message>
    <message>
        <source>&amp;End:</source>
        <translation>終了(&amp;N):</translation>
    </message>
    <message>
        <source>&amp;What was it?</source>
        <translation>何をしていましたか(&amp;W):</translation>
    </message>
    <message>
        <source>&amp;Project:</source>
        <translation>プロジェクト(&amp;P):</translation>
    </message>
    <message>
        <source>It ends before it begins.</source>
        <translation>終了が開始より前です。</translation>
    </message>
    <message>
        <source>No time is free there: you worked then, or it is still to come.</source>
        <translation>空いている時間がありません。作業済みか、まだ来ていない時間です。</translation>
    </message>
    <message>
        <source>%1 of it is free. Time that you worked stays as it is.</source>
        <translation>空いているのは%1です。作業した時間はそのままです。</translation>
    </message>
    <message>
        <source>Named by hand</source>
        <translation>手動で命名</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>名前を付ける(&amp;N)</translation>
    </message>
    <message>
        <source>Name This Time</source>
        <translation>この時間に名前を付ける</translation>
    </message>
    <message>
        <source>The time stays with its programs. The history notes what was changed by hand.</source>
        <translation>時間はプログラムのもののままです。手動で変更したことが履歴に記録されます。</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>拡大(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>縮小(&amp;O)</translation>
    </message>
    <message>
        <source>Reset &amp;Zoom</source>
        <translation>拡大率を戻す(&amp;Z)</translation>
    </message>
    <message>
        <source>Start the timer to record where your time goes, and when.</source>
        <translation>タイマーを開始すると、いつ何に時間を使ったかが記録されます。</translation>
    </message>
    <message>
        <source>Add to &amp;Project</source>
        <translation>プロジェクトに追加(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;New Project…</source>
        <translation>新規プロジェクト(&amp;N)…</translation>
    </message>
    <message>
        <source>Absences</source>
        <translation>不在の時間</translation>
    </message>
    <message>
        <source>Do not ask about these absences</source>
        <translation>これらの不在について尋ねない</translation>
    </message>
    <message>
        <source>What the absence was</source>
        <translation>不在の内容</translation>
    </message>
    <message>
        <source>Project of the absence</source>
        <translation>不在のプロジェクト</translation>
    </message>
    <message>
        <source>Book the absence as work</source>
        <translation>不在を作業として記入</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>休憩</translation>
    </message>
    <message>
        <source>The absence was not work</source>
        <translation>不在は作業ではない</translation>
    </message>
    <message>
        <source>&amp;What did you do?</source>
        <translation>何をしていましたか(&amp;W):</translation>
    </message>
    <message>
        <source>You were away: %@</source>
        <translation>席を外していた時間: %@</translation>
    </message>
    <message>
        <source>Book the Absence</source>
        <translation>不在の記入</translation>
    </message>
    <message>
        <source>You were away for %@</source>
        <translation>席を外していました（%@）</translation>
    </message>
    <message>
        <source>%@. What was it?</source>
        <translation>%@。何をしていましたか?</translation>
    </message>
    <message>
        <source>Say…</source>
        <translation>入力…</translation>
    </message>
    <message>
        <source>%@ – %@ (%@)</source>
        <translation>%@ – %@（%@）</translation>
    </message>
    <message>
        <source>&amp;Ask what an absence was</source>
        <translation>不在の内容を尋ねる(&amp;A)</translation>
    </message>
    <message>
        <source>When you come back, a notice and a bar in the window ask what you did. Your answer is booked by hand; without one, the time stays idle.</source>
        <translation>戻ったときに、通知とウィンドウのバーで何をしていたかを尋ねます。答えは手動で記入され、答えがなければアイドルのままです。</translation>
    </message>
    <message>
        <source>&amp;Shortest absence:</source>
        <translation>最短の不在(&amp;S):</translation>
    </message>
    <message>
        <source>The times could not be exported.</source>
        <translation>時間をエクスポートできませんでした。</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>ウィンドウ</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>識別子</translation>
    </message>
    <message>
        <source>Export Shown &amp;Timers for Spreadsheets…</source>
        <translation>表示中のタイマーを表計算用にエクスポート(&amp;T)…</translation>
    </message>
    <message>
        <source>Copy for Spreadshee&amp;t</source>
        <translation>表計算用にコピー(&amp;T)</translation>
    </message>
    <message>
        <source>A project shows all its timers, however little time they have</source>
        <translation>プロジェクトには、時間が短いものも含めてすべてのタイマーが表示されます</translation>
    </message>
    <message>
        <source>It is removed from the file at once. It can be undone until Ticklog ends.</source>
        <translation>ファイルからすぐに取り除かれます。Ticklog が終了するまでは取り消せます。</translation>
    </message>
    <message>
        <source>Forget this?</source>
        <translation>これを消去しますか?</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>読み込み中…</translation>
    </message>
    <message>
        <source>The history cannot be read at the moment.</source>
        <translation>現在、履歴を読み込めません。</translation>
    </message>
    <message>
        <source>Time that belongs to several projects is in each of their rows.</source>
        <translation>複数のプロジェクトに属する時間は、それぞれの行に含まれています。</translation>
    </message>
    <message>
        <source>Total without %@</source>
        <translation>合計（%@ を除く）</translation>
    </message>
    <message>
        <source>Total without %@ and %@</source>
        <translation>合計（%@ と %@ を除く）</translation>
    </message>
    <message>
        <source>No history is kept. You can turn it on in the preferences, under History.</source>
        <translation>履歴は残されていません。設定の「履歴」で有効にできます。</translation>
    </message>
    <message>
        <source>Delete selected times</source>
        <translation>選択した行を削除しますか?</translation>
    </message>
    <message>
        <source>Are you sure you wish permanently delete the selected timing rows?</source>
        <translation>時間も一緒に削除されます。「元に戻す」で取り消せます。</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>デスクトップ</translation>
    </message>
    <message>
        <source>Private</source>
        <translation>プライベート</translation>
    </message>
    <message>
        <source>Timer still running.</source>
        <translation>タイマーはまだ動いています。</translation>
    </message>
    <message>
        <source>There is a timer currently running. Ticklog must remain open in order to keep track of time. Are you sure you wish to quit?</source>
        <translation>時間を計測するには Ticklog を開いたままにする必要があります。終了しますか?</translation>
    </message>
    <message>
        <source>Remain Open</source>
        <translation>開いたままにする</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>期間</translation>
    </message>
    <message>
        <source>Length of the range</source>
        <translation>期間の長さ</translation>
    </message>
    <message>
        <source>Grouping</source>
        <translation>グループ分け</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>カレンダー</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>検索をクリア</translation>
    </message>
    <message>
        <source>While its timer runs, Ticklog notes which program and which of its windows, by its title, is in front, and for how long.</source>
        <translation>タイマーの動作中、Ticklog は、どのプログラムのどのウィンドウ（タイトルで区別）がどれだけの時間前面にあったかを記録します。</translation>
    </message>
    <message>
        <source>It notes no keys, no pictures and nothing of what is in a window; time without input goes to Idle.</source>
        <translation>キー入力も画像もウィンドウの中身も記録しません。操作のない時間は「アイドル」に数えられます。</translation>
    </message>
    <message>
        <source>The record stays on this computer, in files that only you can read, and is sent nowhere.</source>
        <translation>記録はこのコンピューターの、あなただけが読めるファイルに残り、どこにも送られません。</translation>
    </message>
    <message>
        <source>You can hide titles by rules, and delete or forget whatever was recorded, at any time.</source>
        <translation>タイトルはいつでもルールで隠すことができ、記録したものはいつでも削除や消去ができます。</translation>
    </message>
    <message>
        <source>Start Ticklog when I log in</source>
        <translation>ログイン時に Ticklog を起動</translation>
    </message>
    <message>
        <source>Start the Timer</source>
        <translation>タイマーを開始</translation>
    </message>
    <message>
        <source>Welcome to Ticklog</source>
        <translation>Ticklog へようこそ</translation>
    </message>
    <message>
        <source>Hide Titles…</source>
        <translation>タイトルを隠す…</translation>
    </message>
    <message>
        <source>Not Yet</source>
        <translation>後で</translation>
    </message>
    <message>
        <source>Icons of &amp;programs</source>
        <translation>プログラムのアイコン(&amp;P)</translation>
    </message>
    <message>
        <source>A &amp;bar behind each time</source>
        <translation>各時間の背後にバー(&amp;B)</translation>
    </message>
    <message>
        <source>Titles without their program’s &amp;name</source>
        <translation>プログラム名を省いたタイトル(&amp;N)</translation>
    </message>
    <message>
        <source>Times of pro&amp;jects in the sidebar</source>
        <translation>サイドバーにプロジェクトの時間(&amp;J)</translation>
    </message>
    <message>
        <source>Timers and projects show:</source>
        <translation>タイマーとプロジェクトに表示するもの:</translation>
    </message>
    <message>
        <source>Lists</source>
        <translation>一覧</translation>
    </message>
    <message>
        <source>Paste &amp;into Project</source>
        <translation>プロジェクトに貼り付け(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Sort By</source>
        <translation>並べ替え(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Ascending</source>
        <translation>昇順(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Descending</source>
        <translation>降順(&amp;D)</translation>
    </message>
    <message>
        <source>sorted, ascending</source>
        <translation>昇順で並べ替え済み</translation>
    </message>
    <message>
        <source>sorted, descending</source>
        <translation>降順で並べ替え済み</translation>
    </message>
    <message>
        <source>Time that belongs to several projects is in each of them.</source>
        <translation>複数のプロジェクトに属する時間は、それぞれに含まれています。</translation>
    </message>
    <message>
        <source>PDF documents</source>
        <translation>PDF 文書</translation>
    </message>
    <message>
        <source>A row for each &amp;title</source>
        <translation>タイトルごとに行を分ける(&amp;T)</translation>
    </message>
    <message>
        <source>A row for each &amp;title, in all programs</source>
        <translation>すべてのプログラムでタイトルごとに行を分ける(&amp;T)</translation>
    </message>
    <message>
        <source>All time is in your projects.</source>
        <translation>すべての時間がプロジェクトに入っています。</translation>
    </message>
    <message>
        <source>%@: a row for each title</source>
        <translation>%@：タイトルごとに行</translation>
    </message>
    <message>
        <source>In reports, rules leave out, rename and categorize programs. A row for each title changes how the timers are kept.</source>
        <translation>レポートでは、ルールでプログラムを除外し、名前を変え、カテゴリを付けます。タイトルごとの行は、タイマーの記録の仕方を変えます。</translation>
    </message>
    <message>
        <source>When a window gets another title, a new row begins instead of the window’s row getting its name. A title that comes back goes on in its old row. After switching this off, the row of a window’s latest title follows the window again, with the time it has.</source>
        <translation>ウインドウのタイトルが変わると、ウインドウの行の名前が変わる代わりに新しい行が始まります。同じタイトルに戻ると、元の行で続きます。オフにすると、最後のタイトルの行が、それまでの時間のまま、またウインドウに従います。</translation>
    </message>
</context>
</TS>
