<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>APIError</name>
    <message>
        <source>You&apos;re not signed in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your session has expired. Sign in again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You&apos;re offline. Showing saved data.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Too many requests. Quorvane will retry shortly.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Server error (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unexpected response: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>About</name>
    <message>
        <source>Version %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version %1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Website</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Terms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contact</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Made by %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AboutView</name>
    <message>
        <source>Smart scheduling links for your Google Calendar.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AboutWindow</name>
    <message>
        <source>About Quorvane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quorvane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About isn&apos;t available in this version yet.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AccountSettings</name>
    <message>
        <source>Signed in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Email</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Booking page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Booking page %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Web Dashboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sign Out…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Server URL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your token is stored in your system keyring. Saved data is cached for offline use.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sign out of Quorvane on this computer?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your booking page keeps working. You can revoke this computer&apos;s token in the web dashboard.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sign Out</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AlertsStep</name>
    <message>
        <source>Stay in the loop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notify me about new bookings, cancellations and upcoming meetings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Quorvane at login (lives in the tray)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AppMenuBar</name>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AppModel</name>
    <message>
        <source>Meeting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You&apos;re offline. Showing saved data.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You&apos;re offline. Showing saved data from %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Booking cancelled. %1 was notified.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Marked as no-show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No-show cleared</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Poll deleted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Poll created. Link copied.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copied link for %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hi %1, I need to move our %2 on %3. Could you pick a new time here? %4
I&apos;ll cancel the original once you&apos;ve rebooked. Thanks!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reschedule message copied</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Appcast</name>
    <message>
        <source>The download of Quorvane %1 was refused: it isn&apos;t the size the update feed gives.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The download of Quorvane %1 was refused: its signature doesn&apos;t match Quorvane&apos;s key.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Updates can&apos;t be verified: this copy of Quorvane has no valid update key.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AuthorCard</name>
    <message>
        <source>Vibe coded with an AI assistant, one idea at a time.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Availability</name>
    <message>
        <source>Focus blocks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Working hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 available %2 to %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Focus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 focus block %2 %3 to %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 h/week bookable · %n focus block(s)</source>
        <translation>
            <numerusform>%1 h/week bookable · %n focus block</numerusform>
            <numerusform>%1 h/week bookable · %n focus blocks</numerusform>
        </translation>
    </message>
    <message>
        <source>Focus blocks are never offered to guests, even inside your working hours.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag on empty space to add hours. Drag a block to move it, drag its edges to resize, and right-click to delete.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Will set %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AvailabilityView</name>
    <message>
        <source>Not signed in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Describe your hours, e.g. “weekdays 9-5, fri 9am-1pm”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Describe your hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply (Ctrl+Return)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saving</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In words:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your week in words: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AvailabilityViewModel</name>
    <message>
        <source>Availability updated</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BannerView</name>
    <message>
        <source>Retry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Retry (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Block</name>
    <message>
        <source>Delete removes it; Shift+Down extends and Shift+Up shortens it by 30 minutes; Up and Down move it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BookingActions</name>
    <message>
        <source>Join Google Meet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy Email</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy Reschedule Message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel Booking…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BookingDetail</name>
    <message>
        <source>Answers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Join Meet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reschedule</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies a message with your booking link so they can pick a new time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel this booking (Ctrl+Delete)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No-show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel Booking</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BookingDetailModel</name>
    <message>
        <source>Cancel %1 with %2?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The event is removed from your calendar and %1 gets a cancellation email from Google Calendar.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BookingFacts</name>
    <message>
        <source>When</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Their time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Booked</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BookingFilterBar</name>
    <message>
        <source>Show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter by event type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All event types</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BookingList</name>
    <message>
        <source>Bookings</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BookingListModel</name>
    <message>
        <source>All types</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Has Google Meet link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear No-show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mark as No-show</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Bookings</name>
    <message>
        <source>Upcoming</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Past</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Email %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No %1 bookings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bookings made through your links appear here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No results for “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try a name, email or event type.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BookingsView</name>
    <message>
        <source>Search bookings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a booking</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Details, notes and actions appear here.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BufferPreview</name>
    <message>
        <source>Buffer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blocks %1 minutes before, %2 minute meeting, %3 minutes after</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1m</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CalendarSettings</name>
    <message>
        <source>Google Calendar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check these calendars for conflicts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New bookings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Google Meet links (when the event type uses Meet)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ColorChips</name>
    <message>
        <source>Color %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CommandPalette</name>
    <message>
        <source>Command palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type a command or search bookings…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command or booking</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No matches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Join next meeting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy link: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CommandTable</name>
    <message>
        <source>Go to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Share Times…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quick Share times</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Poll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New poll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Web Dashboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open web dashboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open My Booking Page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open my booking page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command Palette…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Join Next Meeting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Quorvane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Welcome Guide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About Quorvane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConnectCalendarCard</name>
    <message>
        <source>Connect Google Calendar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your booking page goes live once Quorvane can see your free/busy times.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connect…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Countdown</name>
    <message>
        <source>now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in %1m</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in %1h</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in %1h %2m</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in %1d</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Now: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DeviceSignIn</name>
    <message>
        <source>Couldn&apos;t reach the server.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Couldn&apos;t reach the server (%1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server&apos;s answer couldn&apos;t be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sign-in failed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Timed out waiting for approval.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>That code expired. Try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sign-in failed (%1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Couldn&apos;t save to the system keyring.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DoneStep</name>
    <message>
        <source>You&apos;re all set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The tray shows your next meeting</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DurationSection</name>
    <message>
        <source>Duration &amp; buffers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Buffer before: %1 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Buffer before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Buffer after: %1 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Buffer after</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EventTypeEditorModel</name>
    <message>
        <source>%1 min</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EventTypeList</name>
    <message>
        <source>Event types</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EventTypeListModel</name>
    <message>
        <source>, Off</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EventTypeRow</name>
    <message>
        <source>Off</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EventTypes</name>
    <message>
        <source>New Meeting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 min · /%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Details (e.g. Zoom link)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A Google Meet link is created for every booking.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You&apos;ll call the guest. Add a phone question below so they leave a number.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EventTypesView</name>
    <message>
        <source>New event type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New event type (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete event type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saving</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No event type selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick one on the left, or press %1 to create one.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FeedUpdater</name>
    <message>
        <source>The update feed couldn&apos;t be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Updates aren&apos;t available in this build of Quorvane.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates: the update feed couldn&apos;t be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quorvane is up to date.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quorvane %1 is available. Your package manager delivers it with your other updates.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quorvane %1 is available.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloading Quorvane %1…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Couldn&apos;t download Quorvane %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Couldn&apos;t keep the download of Quorvane %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quorvane %1 is downloaded and verified. It takes this version&apos;s place the next time Quorvane starts.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FreedesktopNotifier</name>
    <message>
        <source>View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Join Meet</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GeneralSection</name>
    <message>
        <source>Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Active</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inactive types are hidden from your booking page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description (shown on your booking page)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GeneralSettings</name>
    <message>
        <source>Open Quorvane at login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show next meeting in the tray</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quick Share (anywhere)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sections</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where the desktop has no global shortcut service, bind a key to this command in your desktop&apos;s keyboard settings:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command for Quick Share: quorvane --share</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Heatmap</name>
    <message>
        <source>Heat map of bookings by weekday and hour</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>InsightsView</name>
    <message>
        <source>No data yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insights appear after your first bookings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bookings (6 mo)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Upcoming</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No-show rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bookings per week</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Popular times</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By event type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No-shows come from meetings you mark as no-show (right-click a past booking).</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>InsightsViewModel</name>
    <message>
        <source>Week of %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LinkSection</name>
    <message>
        <source>Link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>URL slug</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>slug</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LocationSection</name>
    <message>
        <source>Location</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LoginSwitch</name>
    <message>
        <source>Couldn&apos;t add Quorvane to the programs that start at login: the autostart folder can&apos;t be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Couldn&apos;t remove Quorvane from the programs that start at login: the autostart folder can&apos;t be written.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainToolBar</name>
    <message>
        <source>Hide Sidebar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Sidebar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quick Share</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Share a few open times (%1 anywhere)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command palette (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refresh (%1)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindowText</name>
    <message>
        <source>Offline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Updated %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not signed in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Live on Google Calendar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calendar not connected</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MeetingLocation</name>
    <message>
        <source>Google Meet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Phone call</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In person</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MenuBarPopover</name>
    <message>
        <source>Today</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No meetings today 🎉</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy a link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Share times…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NewPollSheet</name>
    <message>
        <source>New group poll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meeting type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quorvane picks your 4 best open times. The link is copied when it&apos;s ready.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create Poll</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NextMeeting</name>
    <message>
        <source>HAPPENING NOW</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NEXT · %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 with %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Join Google Meet with %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NextMeetingCard</name>
    <message>
        <source>Join Meet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No upcoming meetings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New bookings show up here automatically.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NotificationPlan</name>
    <message>
        <source>New booking: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelled: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was cancelled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 with %2 in %3 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meeting</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NotificationSettings</name>
    <message>
        <source>Notifications are off for Quorvane.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No notification service answered on this desktop. Turn notifications on in your desktop&apos;s settings, or, if it has none of its own, install and start a notification daemon such as dunst or mako. Then choose Enable… again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New bookings and cancellations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meeting reminders with a Join button</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remind me</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quorvane checks for changes every minute while it&apos;s running (it lives in the tray).</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OnboardingText</name>
    <message>
        <source>Step %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 opens the command palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 shares a few open times from anywhere</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signed in as %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OnboardingView</name>
    <message>
        <source>Back</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OnboardingWindow</name>
    <message>
        <source>Welcome to Quorvane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The welcome guide isn&apos;t available in this version yet.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PollCard</name>
    <message>
        <source>Copy Link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete poll</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PollListModel</name>
    <message>
        <source>%1 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Poll link copied</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PollOptionsModel</name>
    <message numerus="yes">
        <source>%1, %n vote(s)</source>
        <translation>
            <numerusform>%1, %n vote</numerusform>
            <numerusform>%1, %n votes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Polls</name>
    <message>
        <source>No votes yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Voters: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PollsView</name>
    <message>
        <source>Group polls offer your best few times. Guests vote, and you pick the winner.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Poll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New poll (Ctrl+N)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No polls yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create one to find a time that works for a whole group.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create a Poll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Poll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The poll link stops working.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PopoverFooter</name>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit Quorvane</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PortalHotKey</name>
    <message>
        <source>Share times</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QuestionsSection</name>
    <message>
        <source>Questions for guests</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove question %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a required question…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a required question</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Up to 5. Answers appear in the booking and in the calendar event.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QuickShare</name>
    <message>
        <source>meeting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 · %2m</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QuickShareModel</name>
    <message>
        <source>Pick up to 3 times (best-ranked first). Press %1 to copy.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Link copied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Times copied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, best of the day</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QuickShareView</name>
    <message>
        <source>Suggest Best 3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy Link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy Times</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy Times (%1)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QuorvaneAPI</name>
    <message>
        <source>Couldn&apos;t start sign-in.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RulesForm</name>
    <message>
        <source>Booking rules</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RulesModel</name>
    <message>
        <source>Minimum notice: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Max meetings per day: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bookable up to %1 days ahead</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calendar alert: %1 min before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimum notice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Max meetings per day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bookable days ahead</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calendar alert</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Section</name>
    <message>
        <source>Today</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bookings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Event Types</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Availability</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Polls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insights</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SectionListModel</name>
    <message>
        <source>Shortcut %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SectionPlaceholder</name>
    <message>
        <source>This section isn&apos;t available in this version yet.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SectionRow</name>
    <message numerus="yes">
        <source>%n item(s)</source>
        <translation>
            <numerusform>%n item</numerusform>
            <numerusform>%n items</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>primary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connected as %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 min before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last checked %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Updates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings aren&apos;t available in this version yet.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ShareFormatter</name>
    <message>
        <source>Here are a few times that work for a %1-minute %2 (%3):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grab one (or see more options) here: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ShareHeader</name>
    <message>
        <source>Share times</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Times in</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SharePreview</name>
    <message>
        <source>Message preview</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ShareTimes</name>
    <message>
        <source>Couldn&apos;t load times</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Retry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No open times</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Widen your availability or connect Google Calendar.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ShareWindow</name>
    <message>
        <source>Share Times</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picking and sharing open times isn&apos;t available in this version yet.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>Sections</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Share links</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SignInHero</name>
    <message>
        <source>Sign in to Quorvane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connect this computer to your Quorvane account to see bookings, edit availability and share times.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SignInPanel</name>
    <message>
        <source>Sign in with your Quorvane account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens your browser. Sign in with Google and approve this computer. The token is stored in your system keyring.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirm this code in your browser:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Browser Again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signed in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SignInStep</name>
    <message>
        <source>Sign in</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SignInText</name>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SkeletonList</name>
    <message>
        <source>Loading</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SnapshotCache</name>
    <message>
        <source>Couldn&apos;t create the folder %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Couldn&apos;t save %1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StagedUpdate</name>
    <message>
        <source>Couldn&apos;t create %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StatusLabel</name>
    <message>
        <source>No-show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pending</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Declined</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Stepper</name>
    <message>
        <source>Decrease</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Increase</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TimeZonePicker</name>
    <message>
        <source>Choose…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time zone: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search time zones</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No matching time zone</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Timeline</name>
    <message>
        <source>%1 · %2 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Join meeting with %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TimelineRow</name>
    <message>
        <source>Join</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TodayView</name>
    <message>
        <source>Today</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This week</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open polls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Today&apos;s timeline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing booked today</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enjoy the focus time. Share a link to get booked.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TrayText</name>
    <message>
        <source>now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1m</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1h</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TypeActions</name>
    <message>
        <source>Copy Link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TypeLinksModel</name>
    <message>
        <source>%1 (%2 min)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy link for %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy %1 link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1m</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TypeRing</name>
    <message>
        <source>Ring chart of bookings by event type</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UpdateSettings</name>
    <message>
        <source>Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatically check for updates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Release Notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Updates are signed with Quorvane&apos;s EdDSA key.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WeeksChart</name>
    <message>
        <source>Bar chart of bookings per week for the last 12 weeks</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Welcome to Quorvane 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Share a link and let people book time that&apos;s really free. Your best hours come first, and every meeting lands on Google Calendar with a Meet link.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
