%Listener  A listener made by addlistener on a deckforge object.
%   The callback runs synchronously, inside the call that raised the event,
%   as callback(source, eventData). An error in it passes to that call.
%   delete(listener) stops it for good; Enabled = false pauses it.
classdef Listener < handle
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
