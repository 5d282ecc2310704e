classdef Listener < handle
%Listener  A listener made by addlistener on a deckforge object.
%   The callback runs synchronously, inside the call that raised the event,
%   as callback(source, eventData). An error in it passes to that call.
%   delete(listener) stops it for good; Enabled = false pauses it.
%
%   Properties:
%     EventName (char row vector)  the event listened to
%     Callback (function handle)   called as callback(source, eventData)
%     Enabled (logical scalar)     false pauses the listener
%
%   Example:
%     d = deckforge.ppt.MessageDispatcher.getTheDispatcher();
%     l = addlistener(d, 'Message', @(src, evt) disp(evt.Message.Text));
%     d.dispatch(deckforge.ppt.ProgressMessage('hello', d));
%     delete(l);

  properties
    EventName = '';
    Callback = [];
    Enabled = true;
  end
  methods
    function obj = Listener(eventName, callback)
      obj.EventName = eventName;
      obj.Callback = callback;
    end
    function delete(obj)
      __deckforge_gw__('removelistener', obj);
    end
  end
end

%!test
%! d = deckforge.ppt.MessageDispatcher.getTheDispatcher ();
%! l = addlistener (d, "Message", @(src, evt) error ("a paused listener ran"));
%! assert (isa (l, "deckforge.Listener"));
%! assert (l.EventName, "Message");
%! l.Enabled = false;
%! d.dispatch (deckforge.ppt.ProgressMessage ("paused", d));
%! delete (l);
