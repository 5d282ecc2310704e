% A listener's error reaches the code that dispatched, as an Octave error
% with its own identifier, and leaves everything usable.
d = deckforge.ppt.MessageDispatcher.getTheDispatcher ();
bad = addlistener (d, 'Message', @(src, evt) error ('test:listener', 'listener failed on %s', evt.Message.Text));
try
  d.dispatch (deckforge.ppt.WarningMessage ('w1', d));
  error ('test:noError', 'the listener error was lost');
catch err
  assert (strcmp (err.identifier, 'test:listener'), err.identifier);
  assert (~isempty (strfind (err.message, 'listener failed on w1')), err.message);
end
% Errors while a node reports itself pass through its constructor too.
filter = d.Filter;
filter.DebugMessagesPass = true;
expect_error (@() deckforge.ppt.Presentation (), 'test:listener');
filter.DebugMessagesPass = false;
delete (bad);
d.dispatch (deckforge.ppt.WarningMessage ('w2', d));
expect_error (@() addlistener (d, 'NoSuchEvent', @disp), 'deckforge:noSuchEvent');
